#pragma once
// What a screen reader says of the board squares, in the language of Idioma.

#include <QString>

// "Casilla 1, fila 1, columna 1: vacía" / "Square 1, row 1, column 1: empty",
// or the mark in place of the last word.
QString NombreCasilla(int boton, const QString &marca);
QString DescripcionCasilla();
