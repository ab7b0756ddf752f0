#include "tablero.h"

#include <algorithm>
#include <cassert>

void AgregaCasilla(ListaCasillas &lista, Integer &cuenta, Integer c, Integer r)
{
    assert(cuenta >= 0 && cuenta < static_cast<Integer>(lista.size()));
    lista[cuenta] = Casilla{c, r};
    ++cuenta;
}

bool RevisaColumna(Integer Columna, const Board &b)
{
    return b(Columna, 0) == b(Columna, 1) && b(Columna, 2) == b(Columna, 0) &&
           b(Columna, 0) != kVacia;
}

bool RevisaFila(Integer Fila, const Board &b)
{
    return b(0, Fila) == b(1, Fila) && b(2, Fila) == b(0, Fila) && b(0, Fila) != kVacia;
}

bool DiagonalDe(const Board &b, Integer marca)
{
    if (b(1, 1) != marca)
        return false;
    return (b(0, 0) == marca && b(2, 2) == marca) || (b(2, 0) == marca && b(0, 2) == marca);
}

bool HayGanador(const Board &b)
{
    bool linea = false;
    for (Integer r = 2; r >= 0; --r)
        linea = RevisaFila(r, b) || linea;
    if (linea)
        return true;
    for (Integer c = 2; c >= 0; --c)
        linea = RevisaColumna(c, b) || linea;
    if (linea)
        return true;
    if (b(1, 1) == b(2, 2) && b(0, 0) == b(1, 1) && b(2, 2) != kVacia)
        return true;
    return b(1, 1) == b(0, 2) && b(2, 0) == b(1, 1) && b(0, 2) != kVacia;
}

bool TableroLleno(const Board &b)
{
    return std::find(b.celda.begin(), b.celda.end(), kVacia) == b.celda.end();
}

void CopiaTablero(Board &destino, const Board &origen)
{
    destino.celda = origen.celda;
}

void LimpiaTablero(Board &b)
{
    b.celda.fill(kVacia);
}

bool NoEstaEnLista(Integer Columna, Integer Fila, const ListaCasillas &lista, Integer cuenta)
{
    return std::none_of(lista.begin(), lista.begin() + cuenta,
                        [&](const Casilla &e) { return e.Columna == Columna && e.Fila == Fila; });
}
