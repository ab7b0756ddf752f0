#include "estrategias.h"

bool JugadaAmenaza(Integer &columna, Integer &fila, const Board &tablero)
{
    Board prueba;
    // (a, b) is the cell the threat aims at, column order; (s, r) the move, row order.
    for (Integer a = 0; a <= 2; ++a)
        for (Integer b = 0; b <= 2; ++b) {
            if (tablero(a, b) != kVacia)
                continue;
            CopiaTablero(prueba, tablero);
            prueba(a, b) = kCero;
            for (Integer r = 0; r <= 2; ++r)
                for (Integer s = 0; s <= 2; ++s) {
                    if (prueba(s, r) != kVacia)
                        continue;
                    prueba(s, r) = kCero;
                    if (RevisaColumna(s, prueba) || RevisaFila(r, prueba) ||
                        DiagonalDe(prueba, kCero)) {
                        columna = s;
                        fila = r;
                        return true;
                    }
                    prueba(s, r) = kVacia;
                }
        }
    return false;
}
