// The computer's reply as a player sees it: from the click on a square to the
// repainted board, through the real main window, offscreen.
#include "azar.h"
#include "formularios.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

namespace {

// Every draw the same, whatever the seed: the person opens each game.
class AzarFijo final : public FuenteAzar {
  public:
    float Rnd() override { return 0.75f; }
    void Randomize(float) override {}
};

void BM_RespuestaPC(benchmark::State &state)
{
    AzarFijo azar;
    UsaFuenteAzar(&azar);
    Main();
    QTest::mouseClick(frmSeleccion().cmdAceptar, Qt::LeftButton);
    ui::VentanaPrincipal &f = Form1();
    QWidget *tablero = f.centralWidget();
    std::vector<double> tiempos;
    int k = 0;
    for (auto _ : state) {
        state.PauseTiming();
        f.cmdnuevo_Click();
        tablero->repaint();
        QPushButton *casilla = f.cmdtir[static_cast<std::size_t>(k++ % 9)];
        state.ResumeTiming();
        const auto inicio = std::chrono::steady_clock::now();
        QTest::mouseClick(casilla, Qt::LeftButton);
        tablero->repaint();
        tiempos.push_back(
            std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - inicio)
                .count());
    }
    std::sort(tiempos.begin(), tiempos.end());
    state.counters["median_us"] = tiempos[tiempos.size() / 2];
    state.counters["p95_us"] = tiempos[tiempos.size() * 95 / 100];
    UsaFuenteAzar(nullptr);
}
BENCHMARK(BM_RespuestaPC)->Unit(benchmark::kMicrosecond)->Iterations(2000);

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
