#include "analisis.h"

#include "apoyo.h"
#include "estado.h"
#include "movimiento.h"

#include <algorithm>

namespace {

// Each draw of the computer's is a choice of n, made by floor(n * x): the
// script (k + 0.5) / n takes branch k.
void Ramifica(const Board &inicio, std::vector<float> guion, double prob,
              std::vector<Respuesta> &salida)
{
    Board b = inicio;
    std::vector<Integer> tamanos;
    {
        AzarGuionado azar(guion);
        MovimientoPC(b);
        tamanos = azar.tamanos;
    }
    if (tamanos.size() <= guion.size())
        return salida.push_back({b, prob});
    const Integer n = tamanos[guion.size()];
    guion.push_back(0);
    for (Integer k = 0; k < n; ++k) {
        guion.back() = (float(k) + 0.5f) / float(n);
        Ramifica(inicio, guion, prob / n, salida);
    }
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
