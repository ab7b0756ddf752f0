#include "analisis.h"

#include "apoyo.h"
#include "estado.h"
#include "movimiento.h"

#include <algorithm>

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

// `guion` takes the computer's first draws down one branch: each draw is a
// choice of n made by floor(n * x), and (k + 0.5) / n takes branch k.
double Analisis::TrasJugada(const Board &tablero, std::vector<float> guion)
{
    if (HayGanador(tablero))
        return 1.0;
    if (TableroLleno(tablero))
        return 0.0;
    Nivel = nivel_;
    Board b = tablero;
    AzarGuionado azar(guion); // in use for this one move: deeper moves install their own
    MovimientoPC(b);
    if (azar.tamanos.size() <= guion.size())
        return HayGanador(b) || TableroLleno(b) ? 0.0 : AlMover(b);
    const Integer n = azar.tamanos[guion.size()];
    double valor = 0.0;
    guion.push_back(0);
    for (Integer k = 0; k < n; ++k) {
        guion.back() = (float(k) + 0.5f) / float(n);
        valor += TrasJugada(tablero, guion) / n;
    }
    return valor;
}
