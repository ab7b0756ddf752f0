#pragma once
// The computer's move against the person, by level (Nivel).

#include "tablero.h"

bool CentroLibre(const Board &tablero);
// Writes 1 into one empty cell of the board and returns true; false, with the
// board unchanged, only when no cell is empty.
bool MovimientoPC(Board &tablero);
