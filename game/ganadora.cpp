#include "estrategias.h"

namespace {

// The first empty cell, in column order, where `marca` completes a line.
bool CompletaLinea(Integer &columna, Integer &fila, const Board &tablero, Integer marca)
{
    Board prueba;
    for (Integer c = 0; c <= 2; ++c)
        for (Integer r = 0; r <= 2; ++r) {
            if (tablero(c, r) != kVacia)
                continue;
            CopiaTablero(prueba, tablero);
            prueba(c, r) = marca;
            if (HayGanador(prueba)) {
                columna = c;
                fila = r;
                return true;
            }
        }
    return false;
}

} // namespace

bool JugadaGanadora(Integer &columna, Integer &fila, const Board &tablero)
{
    return CompletaLinea(columna, fila, tablero, kCero);
}

bool JugadaBloqueo(Integer &columna, Integer &fila, const Board &tablero)
{
    return CompletaLinea(columna, fila, tablero, kEquis);
}
