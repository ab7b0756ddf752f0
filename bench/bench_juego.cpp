// The computer's move and the exact analysis of every level.
#include "analisis.h"
#include "apoyo.h"
#include "estado.h"
#include "movimiento.h"

#include <benchmark/benchmark.h>

#include <set>
#include <string>
#include <vector>

namespace {

// Every distinct position with the computer to move that play against the
// level reaches, whoever opens, whatever the person plays and the computer draws.
std::vector<Board> PosicionesPC(Integer nivel)
{
    std::vector<Board> pendientes{Board{}};
    for (std::size_t k = 0; k < 9; ++k) {
        Board b;
        b.celda[k] = kEquis;
        pendientes.push_back(b);
    }
    std::vector<Board> salida;
    std::set<std::string> vistas;
    Nivel = nivel;
    while (!pendientes.empty()) {
        const Board b = pendientes.back();
        pendientes.pop_back();
        if (HayGanador(b) || TableroLleno(b) || !vistas.insert(ComoTexto(b)).second)
            continue;
        salida.push_back(b);
        for (const Respuesta &r : RespuestasPC(b))
            if (!HayGanador(r.tablero) && !TableroLleno(r.tablero))
                for (std::size_t k = 0; k < 9; ++k)
                    if (r.tablero.celda[k] == kVacia) {
                        Board siguiente = r.tablero;
                        siguiente.celda[k] = kEquis;
                        pendientes.push_back(siguiente);
                    }
    }
    return salida;
}

void BM_MovimientoPC(benchmark::State &state)
{
    const auto nivel = static_cast<Integer>(state.range(0));
    const std::vector<Board> posiciones = PosicionesPC(nivel);
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
