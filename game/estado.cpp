#include "estado.h"

Board Tablero;
bool Jugando = false;
Integer Nivel = 0;
Integer Modo = 0;
Integer Turno = 0;
std::string Jugador1;
std::string Jugador2;
Integer Idioma = 0;
bool DesdeMenu = false;

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
