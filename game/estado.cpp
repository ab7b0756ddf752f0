#include "estado.h"

// Static storage: everything starts at zero, False or empty, as before Main runs.
Board Tablero;
bool Jugando;
Integer Nivel;
Integer Modo;
Integer Turno;
std::string Jugador1;
std::string Jugador2;
Integer Idioma;
bool DesdeMenu;

void ValoresIniciales()
{
    Idioma = kEspanol;
    Jugador1.clear();
    Jugador2.clear();
    DesdeMenu = false;
    Nivel = 3;
}

const std::string &JugadorDelTurno()
{
    return Turno == kTurnoJugador1 ? Jugador1 : Jugador2;
}
