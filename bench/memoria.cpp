// The memory the game keeps as a player plays it, on whatever display it is
// given (the test runs it on X11 under a window manager). First whole rounds
// by keys: a game against the computer to its end and a new one, then the
// level dialog, About, 1 vs 2 with its opponents dialog, the opponents dialog
// again, each closed by Escape, and Vs PC; the resident memory's growth per
// round after ten, and which of those steps it came from. Then each window
// opened and closed alone, beside the floor: a plain Qt dialog of the same
// shape (three options and a button), made, shown modal, closed and deleted,
// and for the message box, Qt's own. Without and then with accessibility
// active, with a client that reads every event's object and the whole tree
// while each window is open, as a screen reader does. With a LIMIT, status 1
// if a round keeps more than LIMIT kB.
//   memoria [OPENINGS [ROUNDS [LIMIT]]]
#include "escritorio.h"
#include "estado.h"
#include "formularios.h"
#include "modalidad.h"

#include <QAccessible>
#include <QApplication>
#include <QFile>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <X11/Xlib.h>

#include <cstdio>
#include <functional>
#include <malloc.h>
#include <map>

namespace {

long RssKb()
{
    QFile estado(QStringLiteral("/proc/self/status"));
    if (!estado.open(QIODevice::ReadOnly))
        qFatal("cannot read /proc/self/status");
    for (QByteArray linea; !(linea = estado.readLine()).isEmpty();)
        if (linea.startsWith("VmRSS:"))
            return linea.mid(6).trimmed().split(' ').first().toLong();
    return 0;
}

// The heap in use, to the byte: it tells which step kept what.
long MonticuloKb()
{
    const struct mallinfo2 m = mallinfo2();
    return long((m.uordblks + m.hblkhd) / 1024);
}

// What a screen reader reads of an object and everything under it.
void Lee(QAccessibleInterface *i, int profundidad = 0)
{
    if (!i || !i->isValid() || profundidad > 20)
        return;
    (void)i->text(QAccessible::Name);
    (void)i->text(QAccessible::Description);
    (void)i->role();
    (void)i->state();
    (void)i->parent();
    for (int n = 0; n < i->childCount(); ++n)
        Lee(i->child(n), profundidad + 1);
}

// Closes the window in front through its title-bar button once it has been
// drawn on screen (read first, with accessibility active).
void CierraDibujada()
{
    QWidget *delante = QApplication::activeModalWidget();
    if (!delante->windowHandle()->isExposed()) {
        QTimer::singleShot(1, CierraDibujada);
        return;
    }
    delante->repaint();
    if (QAccessible::isActive())
        Lee(QAccessible::queryAccessibleInterface(qApp));
    delante->close();
}

// Opens the window, which returns once it has closed; it goes once the event
// loop is back, as in the game.
void AbreYCierra(const std::function<void()> &abre)
{
    QTimer::singleShot(0, CierraDibujada);
    abre();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void Suelo()
{
    QDialog dialogo;
    for (const char *texto : {"&1", "&2", "&3"})
        new QRadioButton(QString::fromLatin1(texto), &dialogo);
    new QPushButton(QStringLiteral("&OK"), &dialogo);
    dialogo.exec();
}

// Growth per opening in kB, after a warm-up.
double Crece(const std::function<void()> &abre, int veces)
{
    for (int n = 0; n < 10; ++n)
        AbreYCierra(abre);
    const long antes = RssKb();
    for (int n = 0; n < veces; ++n)
        AbreYCierra(abre);
    return double(RssKb() - antes) / veces;
}

// The window a player's keys reach: an open menu, else the modal window in
// front, else the main window; null until it is on screen.
QWidget *Delante()
{
    QWidget *w = QApplication::activePopupWidget();
    if (!w)
        w = QApplication::activeModalWidget();
    if (!w)
        w = &Form1();
    return w->windowHandle() && w->windowHandle()->isExposed() ? w : nullptr;
}

// Whether the window takes the keys: the window system's focus is on it
// (on X11 asked of the server, which can be late to give it to a new dialog)
// and the program knows it.
bool TomaLasTeclas(QWidget *w)
{
    if (!w->isActiveWindow())
        return false;
    auto *x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11 || qobject_cast<QMenu *>(w)) // a menu takes them by its grab
        return true;
    Window foco;
    int revierte;
    XGetInputFocus(x11->display(), &foco, &revierte);
    return foco == w->winId();
}

// A player's keys, step by step, each once the window it is meant for is in
// front: a step that opens a dialog returns only once the dialog closes, so
// the steps run from the event loop, the dialog's steps in the dialog's own.
class Jugador {
  public:
    enum Ventana { Principal, Menu, Dialogo };
    struct Paso {
        const char *cuenta; // what its growth is charged to
        Ventana donde;
        std::function<void(QWidget *)> haz;
    };

    // Runs the steps once. Each step's growth goes to its account, less that
    // of the steps it waits on: a dialog's whole life goes to the step that
    // opened it and the one that closed it.
    void Juega(const std::vector<Paso> &pasos)
    {
        pasos_ = &pasos;
        siguiente_ = 0;
        plazo_ = QDeadlineTimer(10000);
        QTimer::singleShot(0, [this] { Intenta(); });
        base_ = QThread::currentThread()->loopLevel() + 1;
        ultimo_ = MonticuloKb();
        bucle_.exec();
        Carga();
    }
    std::map<std::string, long> crecido;
    int clics = 0; // the main window clicked for the keys

  private:
    void Intenta()
    {
        const Paso &p = (*pasos_)[siguiente_];
        QWidget *w = Delante();
        const int nivel = QThread::currentThread()->loopLevel();
        // As a player waits for a window to take the keys before pressing any.
        const bool listo = w && TomaLasTeclas(w) &&
                           (p.donde == Principal ? w == &Form1() && nivel == base_
                            : p.donde == Menu    ? qobject_cast<QMenu *>(w) && nivel == base_
                                                 : w->isModal() && nivel == base_ + 1);
        if (!listo) {
            // The main window back on screen with no keys for 2 s, which on
            // a loaded machine happens (the X server's focus on it, Qt's
            // nowhere): the player clicks it.
            if (p.donde == Principal && w == &Form1() && !clicado_ &&
                plazo_.remainingTime() < 8000) {
                clicado_ = true;
                ++clics;
                w->activateWindow();
            }
            if (plazo_.hasExpired())
                qFatal("waited 10 s for the %s of the step charged to %s to take the keys",
                       p.donde == Menu      ? "menu"
                       : p.donde == Dialogo ? "dialog"
                                            : "main window",
                       p.cuenta);
            return QTimer::singleShot(10, [this] { Intenta(); });
        }
        plazo_ = QDeadlineTimer(10000);
        clicado_ = false;
        if (++siguiente_ == pasos_->size())
            bucle_.quit();
        else // queued first: it runs in the dialog this step may open
            QTimer::singleShot(0, [this] { Intenta(); });
        Carga();
        cuentas_.push_back(p.cuenta);
        p.haz(w);
        // A window closed by the step goes once the event loop is back: now.
        if (nivel == base_)
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Carga();
        cuentas_.pop_back();
    }
    void Carga()
    {
        const long ahora = MonticuloKb();
        crecido[cuentas_.back()] += ahora - ultimo_;
        ultimo_ = ahora;
    }

    const std::vector<Paso> *pasos_ = nullptr;
    size_t siguiente_ = 0;
    bool clicado_ = false;
    int base_ = 0;
    long ultimo_ = 0;
    std::vector<std::string> cuentas_{"the event loop"};
    QDeadlineTimer plazo_;
    QEventLoop bucle_;
};

// One round: the keys as a player presses them, the menu's access keys in
// Spanish, the language the game starts in.
std::vector<Jugador::Paso> Ronda()
{
    using J = Jugador;
    const auto tecla = [](int k, Qt::KeyboardModifiers m = Qt::NoModifier) {
        return [k, m](QWidget *w) { QTest::keyClick(w, Qt::Key(k), m); };
    };
    std::vector<J::Paso> pasos{{"a game", J::Principal, [](QWidget *) {
                                    ui::VentanaPrincipal &f = Form1();
                                    for (int k = 0; Jugando; k = (k + 1) % 9)
                                        if (f.cmdtir[k]->text().isEmpty())
                                            QTest::keyClick(f.cmdtir[k], Qt::Key_Space);
                                    QTest::keyClick(f.cmdnuevo, Qt::Key_Space);
                                }}};
    for (auto [cuenta, letra, dialogo] : {std::tuple{"the level dialog", Qt::Key_N, true},
                                          {"About", Qt::Key_A, true},
                                          {"1 vs 2 and its opponents dialog", Qt::Key_1, true},
                                          {"the opponents dialog", Qt::Key_O, true},
                                          {"Vs PC", Qt::Key_V, false}}) {
        pasos.push_back({cuenta, J::Principal, tecla(Qt::Key_O, Qt::AltModifier)});
        pasos.push_back({cuenta, J::Menu, tecla(letra)});
        if (dialogo)
            pasos.push_back({cuenta, J::Dialogo, tecla(Qt::Key_Escape)});
    }
    return pasos;
}

// Rounds after ten to warm up; status 1 if one keeps more than the limit.
int Rondas(int rondas, double limite, bool accesible)
{
    Jugador j;
    const std::vector<Jugador::Paso> pasos = Ronda();
    for (int n = 0; n < 10; ++n)
        j.Juega(pasos);
    j.crecido.clear();
    const long antes = RssKb(), monticulo = MonticuloKb();
    for (int n = 0; n < rondas; ++n)
        j.Juega(pasos);
    const double kb = double(RssKb() - antes) / rondas;
    std::printf("%s accessibility, %d rounds: memory kept per round %.2f kB; heap %.2f kB, of it\n",
                accesible ? "with" : "without", rondas, kb,
                double(MonticuloKb() - monticulo) / rondas);
    for (const auto &[cuenta, crecido] : j.crecido)
        std::printf("  %-34s %6.2f kB\n", cuenta.c_str(), double(crecido) / rondas);
    if (j.clics > 0)
        std::printf("  the main window took the keys only once clicked, %d times\n", j.clics);
    if (limite <= 0 || kb <= limite)
        return 0;
    std::fprintf(stderr, "memoria: a round keeps %.1f kB, more than %g kB; above, what grew\n", kb,
                 limite);
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    // Started as the game starts, on the display the game would take.
    EligeSistemaDeVentanas();
    QApplication app(argc, argv);
    ProtegeModalidad();
    IdentificaPrograma();
    const int veces = argc > 1 ? std::atoi(argv[1]) : 1000;
    const int rondas = argc > 2 ? std::atoi(argv[2]) : 150;
    const double limite = argc > 3 ? std::atof(argv[3]) : 0;
    Main();
    frmSeleccion().cmdAceptar->click();
    ui::VentanaPrincipal &f = Form1();
    const std::pair<const char *, std::function<void()>> ventanas[] = {
        {"plain Qt dialog", Suelo},
        {"level", [&f] { f.mnuNivel_Click(); }},
        {"opponents", [&f] { f.mnuoponentes_Click(); }},
        {"about", [&f] { f.mnuacerca_Click(); }},
        {"language", [&f] { f.mnuSeleccionIdioma_Click(); }},
        // Qt's own message box keeps some memory at each opening on X11 (its
        // icon drawn anew): the floor for the game's.
        {"plain Qt message box",
         [&f] { QMessageBox::information(&f, QStringLiteral("t"), QStringLiteral("x")); }},
        {"message box", [&f] { MsgBoxInformacion(&f, QStringLiteral("t"), QStringLiteral("x")); }},
    };
    int estado = 0;
    for (const bool accesible : {false, true}) {
        if (accesible) {
            QAccessible::setActive(true);
            // Every event's object read, as a screen reader's listener does;
            // but not one being destroyed, which Qt 6.11 announces from
            // within its destructor and a screen reader only forgets.
            QAccessible::installUpdateHandler([](QAccessibleEvent *e) {
                if (e->type() == QAccessible::ObjectDestroyed)
                    return;
                if (QAccessibleInterface *i = e->accessibleInterface())
                    (void)i->text(QAccessible::Name);
            });
        }
        estado |= Rondas(rondas, limite, accesible);
        std::printf("%s accessibility, %d openings each: memory kept per opening\n",
                    accesible ? "with" : "without", veces);
        double suelo = 0;
        for (const auto &[nombre, abre] : ventanas) {
            const double kb = Crece(abre, veces);
            if (QByteArray(nombre).startsWith("plain"))
                suelo = kb;
            std::printf("  %-24s %6.2f kB", nombre, kb);
            if (suelo > 0)
                std::printf("  %5.2fx the floor", kb / suelo);
            std::printf("\n");
        }
    }
    std::printf("target: under 2 kB a round; under 1 kB an opening, within 1.5x the floor\n");
    return estado;
}
