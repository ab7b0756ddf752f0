// The computer's move and the exact analysis of every level.
#include "analisis.h"
#include "apoyo.h"
#include "estado.h"
#include "movimiento.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

// Every position with the computer to move that play against `nivel` reaches,
// human first or computer first.
std::vector<Board> Posiciones(Integer nivel)
{
    std::vector<Board> salida;
    std::vector<bool> vista(19683, false);
    std::vector<Board> pendientes{Board{}};
    for (std::size_t k = 0; k < 9; ++k) {
        Board b;
        b.celda[k] = kEquis;
        pendientes.push_back(b);
    }
    Nivel = nivel;
    while (!pendientes.empty()) {
        const Board b = pendientes.back();
        pendientes.pop_back();
        const auto clave = static_cast<std::size_t>(Clave(b));
        if (HayGanador(b) || TableroLleno(b) || vista[clave])
            continue;
        vista[clave] = true;
        salida.push_back(b);
        for (const Respuesta &r : RespuestasPC(b))
            if (!HayGanador(r.tablero) && !TableroLleno(r.tablero))
                for (std::size_t k = 0; k < 9; ++k)
                    if (r.tablero.celda[k] == kVacia) {
                        Board s = r.tablero;
                        s.celda[k] = kEquis;
                        pendientes.push_back(s);
                    }
    }
    return salida;
}

void BM_MovimientoPC(benchmark::State &state)
{
    const auto nivel = static_cast<Integer>(state.range(0));
    const std::vector<Board> posiciones = Posiciones(nivel);
    ReiniciaAzar();
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
