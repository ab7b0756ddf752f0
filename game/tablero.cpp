#include "tablero.h"

void AgregaCasilla(ListaCasillas &lista, Integer &cuenta, Integer c, Integer r)
{
    if (cuenta < 0 || cuenta >= static_cast<Integer>(lista.size()))
        return;
    lista[static_cast<std::size_t>(cuenta)] = Casilla{c, r};
    ++cuenta;
}

bool RevisaColumna(const Integer &Columna, const Board &b)
{
    const int c = Columna;
    return b(c, 0) == b(c, 1) && b(c, 2) == b(c, 0) && b(c, 0) != 0;
}

bool RevisaFila(const Integer &Fila, const Board &b)
{
    const int r = Fila;
    return b(0, r) == b(1, r) && b(2, r) == b(0, r) && b(0, r) != 0;
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
    if (b(1, 1) == b(2, 2) && b(0, 0) == b(1, 1) && b(2, 2) != 0)
        return true;
    return b(1, 1) == b(0, 2) && b(2, 0) == b(1, 1) && b(0, 2) != 0;
}

bool TableroLleno(const Board &b)
{
    for (int c = 0; c <= 2; ++c)
        for (int r = 0; r <= 2; ++r)
            if (b(c, r) == 0)
                return false;
    return true;
}

void CopiaTablero(Board &destino, const Board &origen)
{
    for (int c = 0; c <= 2; ++c)
        for (int r = 0; r <= 2; ++r)
            destino(c, r) = origen(c, r);
}

void LimpiaTablero(Board &b)
{
    for (int c = 0; c <= 2; ++c)
        for (int r = 0; r <= 2; ++r)
            b(c, r) = 0;
}

bool NoEstaEnLista(const Integer &Columna, const Integer &Fila, const ListaCasillas &lista,
                   const Integer &cuenta)
{
    for (Integer i = 0; i < cuenta && i < static_cast<Integer>(lista.size()); ++i) {
        const Casilla &e = lista[static_cast<std::size_t>(i)];
        if (e.Columna == Columna && e.Fila == Fila)
            return false;
    }
    return true;
}
