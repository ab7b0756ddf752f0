#pragma once
// The board, its cell encoding and the primitive tests on it.

#include "entero.h"

#include <array>

// Cell values.
constexpr Integer kVacia = 0;
constexpr Integer kCero = 1;  // "0": the computer, or the second player
constexpr Integer kEquis = 2; // "X": the person, or the first player

// A 3x3 board addressed (column, row); column 0 is the left, row 0 the top.
// Cell (c, r) is stored at 3*r + c, the index of the button that shows it.
struct Board {
    std::array<Integer, 9> celda{};

    Integer &operator()(int c, int r) { return celda[3 * r + c]; }
    Integer operator()(int c, int r) const { return celda[3 * r + c]; }
    bool operator==(const Board &o) const { return celda == o.celda; }
    bool operator!=(const Board &o) const { return celda != o.celda; }
};

struct Casilla {
    Integer Columna = 0;
    Integer Fila = 0;
};

// Lists of Casilla: nine slots and a separate count of the entries in use.
using ListaCasillas = std::array<Casilla, 9>;

// Appends (c, r) and counts it. A list holds at most the nine cells of a board.
void AgregaCasilla(ListaCasillas &lista, Integer &cuenta, Integer c, Integer r);

bool RevisaColumna(Integer Columna, const Board &b);
bool RevisaFila(Integer Fila, const Board &b);
// Either diagonal held wholly by `marca`.
bool DiagonalDe(const Board &b, Integer marca);
bool HayGanador(const Board &b);
bool TableroLleno(const Board &b);
void CopiaTablero(Board &destino, const Board &origen);
void LimpiaTablero(Board &b);
bool NoEstaEnLista(Integer Columna, Integer Fila, const ListaCasillas &lista, Integer cuenta);
