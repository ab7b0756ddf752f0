#pragma once
// The game state shared by every window, alive for the whole run.

#include "tablero.h"

#include <string>

// Values of Modo.
constexpr Integer kContraPC = 1;
constexpr Integer kDosJugadores = 2;
// Values of Turno.
constexpr Integer kTurnoJugador1 = 1;
constexpr Integer kTurnoJugador2 = 2;
// Values of Idioma.
constexpr Integer kIngles = 0;
constexpr Integer kEspanol = 1;

extern Board Tablero;
extern bool Jugando;
extern Integer Nivel;        // 1 "Fácil", 2 "Medio", 3 "A que no ganas"
extern Integer Modo;         // kContraPC, kDosJugadores; 0 until the main window loads
extern Integer Turno;        // two players: who moves next; Jugador1 plays "X", Jugador2 "0"
extern std::string Jugador1; // UTF-8
extern std::string Jugador2;
extern Integer Idioma; // kEspanol, kIngles
extern bool DesdeMenu; // the language window has been opened from the menu

// The defaults every run starts from (the first steps of Main).
void ValoresIniciales();
// The name of the player whose turn it is.
const std::string &JugadorDelTurno();
