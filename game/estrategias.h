#pragma once
// The computer's strategies. Each looks for a cell on the board it is given
// and never changes that board; the column and row are written only when it
// returns true.

#include "tablero.h"

// Complete a line of the computer's (1) / of the person's (2): column order.
bool JugadaGanadora(Integer &columna, Integer &fila, const Board &tablero);
bool JugadaBloqueo(Integer &columna, Integer &fila, const Board &tablero);

// Row-and-column fork for `marca`, searched from (columna, fila) on: every
// column starts again at the entry row. Diagonals are never considered.
bool BuscaDoble(Integer &columna, Integer &fila, const Board &tablero, Integer marca);
// The computer's own first fork cell in column order.
bool JugadaDoble(Integer &columna, Integer &fila, const Board &tablero);
// Defence against the person's forks: the only fork cell, or a random forcing
// threat whose reply is not a fork cell.
bool BloqueaDoble(Integer &columna, Integer &fila, const Board &tablero);

// Two of the computer's marks in a line with the third cell empty.
bool JugadaAmenaza(Integer &columna, Integer &fila, const Board &tablero);

// A random empty corner, edge cell, or any cell.
bool EsquinaAlAzar(Integer &columna, Integer &fila, const Board &tablero);
bool LadoAlAzar(Integer &columna, Integer &fila, const Board &tablero);
bool CasillaAlAzar(Integer &columna, Integer &fila, const Board &tablero);
