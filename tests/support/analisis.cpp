#include "analisis.h"

#include "apoyo.h"
#include "azar.h"
#include "estado.h"
#include "movimiento.h"

#include <algorithm>

namespace {

// Answers the first choices from a script, the rest with 0, and records
// the size of every choice asked for.
struct AzarRamas final : FuenteAzar {
    std::vector<Integer> guion, tamanos;
    float Rnd() override { return 0.0f; }
    Integer Elige(Integer n) override
    {
        tamanos.push_back(n);
        return tamanos.size() <= guion.size() ? guion[tamanos.size() - 1] : 0;
    }
};

void Ramifica(const Board &inicio, const std::vector<Integer> &guion, double prob,
              std::vector<Respuesta> &salida)
{
    AzarRamas azar;
    azar.guion = guion;
    Board b = inicio;
    UsaFuenteAzar(&azar);
    MovimientoPC(b);
    UsaFuenteAzar(nullptr);
    if (azar.tamanos.size() <= guion.size())
        return salida.push_back({b, prob});
    azar.guion.push_back(0);
    for (const Integer n = azar.tamanos[guion.size()]; azar.guion.back() < n; ++azar.guion.back())
        Ramifica(inicio, azar.guion, prob / n, salida);
}

} // namespace

std::vector<Respuesta> RespuestasPC(const Board &tablero)
{
    std::vector<Respuesta> salida;
    Ramifica(tablero, {}, 1.0, salida);
    return salida;
}

double Analisis::AlMover(const Board &tablero)
{
    const auto [memo, nuevo] = memo_.try_emplace(ComoTexto(tablero), 0.0);
    for (std::size_t k = 0; nuevo && k < 9; ++k)
        if (tablero.celda[k] == kVacia) {
            Board b = tablero;
            b.celda[k] = kEquis;
            memo->second = std::max(memo->second, TrasJugada(b));
        }
    return memo->second;
}

double Analisis::TrasJugada(const Board &tablero)
{
    if (HayGanador(tablero))
        return 1.0;
    if (TableroLleno(tablero))
        return 0.0;
    Nivel = nivel_;
    double valor = 0.0;
    for (const Respuesta &r : RespuestasPC(tablero))
        if (!HayGanador(r.tablero) && !TableroLleno(r.tablero))
            valor += r.probabilidad * AlMover(r.tablero);
    return valor;
}
