#include "estrategias.h"

#include "azar.h"

bool BuscaDoble(Integer &columna, Integer &fila, const Board &tablero, Integer marca)
{
    const Integer c0 = columna;
    const Integer r0 = fila;
    Board prueba;
    for (Integer c = c0; c <= 2; ++c)
        for (Integer r = r0; r <= 2; ++r) {
            if (tablero(c, r) != kVacia)
                continue;
            CopiaTablero(prueba, tablero);
            bool filaHecha = false;
            bool columnaHecha = false;
            prueba(c, r) = marca;
            for (Integer x = 0; x <= 2; ++x)
                if (prueba(x, r) == kVacia) {
                    prueba(x, r) = marca;
                    filaHecha = RevisaFila(r, prueba);
                    break;
                }
            if (!filaHecha)
                continue;
            for (Integer y = 0; y <= 2; ++y)
                if (prueba(c, y) == kVacia) {
                    prueba(c, y) = marca;
                    columnaHecha = RevisaColumna(c, prueba);
                    break;
                }
            if (columnaHecha) {
                columna = c;
                fila = r;
                return true;
            }
        }
    return false;
}

bool JugadaDoble(Integer &columna, Integer &fila, const Board &tablero)
{
    for (Integer a = 0; a <= 2; ++a)
        for (Integer b = 0; b <= 2; ++b)
            if (BuscaDoble(a, b, tablero, kCero)) {
                columna = a;
                fila = b;
                return true;
            }
    return false;
}

bool BloqueaDoble(Integer &columna, Integer &fila, const Board &tablero)
{
    ListaCasillas ListaDobles{};
    Integer cuentaDobles = 0;
    // A fork found moves the search on to the cell below it: BuscaDoble
    // writes the found cell back into c and r.
    for (Integer c = 0; c <= 2; ++c)
        for (Integer r = 0; r <= 2; ++r)
            if (BuscaDoble(c, r, tablero, kEquis))
                AgregaCasilla(ListaDobles, cuentaDobles, c, r);

    if (cuentaDobles == 0)
        return false;
    if (cuentaDobles == 1) {
        columna = ListaDobles[0].Columna;
        fila = ListaDobles[0].Fila;
        return true;
    }

    // Forcing moves: one entry per line that the candidate and a reply
    // complete, neither of them one of the person's fork cells.
    ListaCasillas ListaForzadas{};
    Integer cuentaForzadas = 0;
    Board prueba;
    for (Integer p = 0; p <= 2; ++p)
        for (Integer q = 0; q <= 2; ++q) {
            if (!NoEstaEnLista(q, p, ListaDobles, cuentaDobles) || tablero(q, p) != kVacia)
                continue;
            CopiaTablero(prueba, tablero);
            prueba(q, p) = kCero;
            for (Integer r = 0; r <= 2; ++r)
                for (Integer s = 0; s <= 2; ++s) {
                    if (!NoEstaEnLista(s, r, ListaDobles, cuentaDobles) || prueba(s, r) != kVacia)
                        continue;
                    prueba(s, r) = kCero;
                    if (RevisaColumna(q, prueba) || RevisaFila(p, prueba) ||
                        DiagonalDe(prueba, kCero))
                        AgregaCasilla(ListaForzadas, cuentaForzadas, q, p);
                    prueba(s, r) = kVacia;
                }
        }

    if (cuentaForzadas == 0)
        return false;
    const Casilla &elegida = ListaForzadas[AlAzar(cuentaForzadas)];
    columna = elegida.Columna;
    fila = elegida.Fila;
    return true;
}
