// Starts a program on the current X display and measures it the way a player
// feels it: milliseconds from exec to its first window being mapped, the CPU
// it used until then, its peak resident memory, and the CPU it uses while it
// waits for the player: over five seconds, from one second after the map.
//   mapeo PROGRAM [ARGS...]   prints: map_ms cpu_ms peak_rss_kb idle_cpu_ms
#include <X11/Xlib.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace {

double Ahora()
{
    timespec t{};
    clock_gettime(CLOCK_MONOTONIC, &t);
    return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_nsec) / 1e6;
}

// CPU time of every thread of the process so far, in milliseconds.
double CpuMs(pid_t pid)
{
    double ns = 0;
    for (const auto &hilo :
         std::filesystem::directory_iterator("/proc/" + std::to_string(pid) + "/task")) {
        std::ifstream f(hilo.path() / "schedstat");
        double enCpu = 0;
        if (f >> enCpu)
            ns += enCpu;
    }
    return ns / 1e6;
}

long PicoRssKb(pid_t pid)
{
    std::ifstream f("/proc/" + std::to_string(pid) + "/status");
    std::string linea;
    while (std::getline(f, linea))
        if (linea.rfind("VmHWM:", 0) == 0)
            return std::stol(linea.substr(6));
    return -1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s PROGRAM [ARGS...]\n", argv[0]);
        return 2;
    }
    Display *d = XOpenDisplay(nullptr);
    if (!d) {
        std::fprintf(stderr, "no X display\n");
        return 1;
    }
    XSelectInput(d, DefaultRootWindow(d), SubstructureNotifyMask);
    XSync(d, False);

    const double inicio = Ahora();
    const pid_t pid = fork();
    if (pid == 0) {
        execvp(argv[1], argv + 1);
        _exit(127);
    }
    double mapeo = -1;
    while (mapeo < 0) {
        if (Ahora() - inicio > 10000) {
            kill(pid, SIGKILL);
            std::fprintf(stderr, "no window within 10 s\n");
            return 1;
        }
        if (!XPending(d)) {
            usleep(200);
            continue;
        }
        XEvent e;
        XNextEvent(d, &e);
        if (e.type != MapNotify || e.xmap.override_redirect)
            continue;
        XWindowAttributes a;
        // Helper windows of the toolkit are tiny; the first real one counts.
        if (XGetWindowAttributes(d, e.xmap.window, &a) && a.width > 50 && a.height > 50)
            mapeo = Ahora() - inicio;
    }
    const double cpu = CpuMs(pid);
    sleep(1); // the first frame is painted and settles
    const double quieto = CpuMs(pid);
    sleep(5);
    const double ocioso = CpuMs(pid) - quieto;
    const long pico = PicoRssKb(pid);
    kill(pid, SIGTERM);
    waitpid(pid, nullptr, 0);
    std::printf("%.1f %.1f %ld %.1f\n", mapeo, cpu, pico, ocioso);
    XCloseDisplay(d);
    return 0;
}
