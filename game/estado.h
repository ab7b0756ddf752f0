#pragma once
// The game state shared by every window, alive for the whole run.

#include "tablero.h"

#include <string>

extern Board Tablero;
extern bool Jugando;
extern Integer Nivel;        // 1 "Fácil", 2 "Medio", 3 "A que no ganas"
extern Integer Modo;         // 1 against the computer, 2 two players
extern Integer Turno;        // two players: 1 Jugador1 ("X") moves next, 2 Jugador2 ("0")
extern std::string Jugador1; // UTF-8
extern std::string Jugador2;
extern Integer Idioma; // 1 Spanish, 0 English
extern bool DesdeMenu; // the language window has been opened from the menu

// The defaults every run starts from (the first steps of Main).
void ValoresIniciales();
// Every variable back to zero, False or empty, as before Main runs.
void BorraEstado();
