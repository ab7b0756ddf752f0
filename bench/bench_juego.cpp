// The computer's move and the exact analysis of every level.
#include "analisis.h"
#include "apoyo.h"
#include "estado.h"
#include "movimiento.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

void BM_MovimientoPC(benchmark::State &state)
{
    const auto nivel = static_cast<Integer>(state.range(0));
    const std::vector<Board> posiciones = PosicionesPC(nivel, Abre::Cualquiera);
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
            benchmark::DoNotOptimize(a.HumanoPrimero());
            benchmark::DoNotOptimize(a.PCPrimero());
        }
    state.SetLabel("levels 1-3, both openers");
}
BENCHMARK(BM_AnalisisCompleto)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
