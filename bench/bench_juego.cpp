// The computer's move and the exact analysis of every level.
#include "analisis.h"
#include "apoyo.h"
#include "estado.h"
#include "movimiento.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

// Every position a game can reach with the computer to move, whoever opened:
// as many marks of each, or one more "X", no line and a free cell.
std::vector<Board> PosicionesPC()
{
    std::vector<Board> salida;
    for (int n = 0; n < 19683; ++n) {
        Board b;
        int equis = 0, ceros = 0;
        for (int k = 0, resto = n; k < 9; ++k, resto /= 3) {
            b.celda[k] = static_cast<Integer>(resto % 3);
            equis += b.celda[k] == kEquis;
            ceros += b.celda[k] == kCero;
        }
        if ((equis == ceros || equis == ceros + 1) && !HayGanador(b) && !TableroLleno(b))
            salida.push_back(b);
    }
    return salida;
}

void BM_MovimientoPC(benchmark::State &state)
{
    const auto nivel = static_cast<Integer>(state.range(0));
    const std::vector<Board> posiciones = PosicionesPC();
    Nivel = nivel;
    for (auto _ : state)
        for (const Board &p : posiciones) {
            Board b = p;
            benchmark::DoNotOptimize(MovimientoPC(b));
            benchmark::DoNotOptimize(b);
        }
    state.counters["positions"] = static_cast<double>(posiciones.size());
    // Seconds per MovimientoPC call, averaged over the positions.
    state.counters["per_call"] = benchmark::Counter(
        static_cast<double>(state.iterations()) * static_cast<double>(posiciones.size()),
        benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_MovimientoPC)->DenseRange(1, 3);

void BM_AnalisisCompleto(benchmark::State &state)
{
    for (auto _ : state)
        for (Integer nivel : {1, 2, 3}) {
            Analisis a(nivel);
            benchmark::DoNotOptimize(a.AlMover(Board{}));
            benchmark::DoNotOptimize(a.TrasJugada(Board{}));
        }
    state.SetLabel("levels 1-3, both openers");
}
BENCHMARK(BM_AnalisisCompleto)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
