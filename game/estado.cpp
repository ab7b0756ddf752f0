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
    Idioma = 1;
    Jugador1.clear();
    Jugador2.clear();
    DesdeMenu = false;
    Nivel = 3;
}

void BorraEstado()
{
    LimpiaTablero(Tablero);
    Jugando = false;
    Nivel = 0;
    Modo = 0;
    Turno = 0;
    Jugador1.clear();
    Jugador2.clear();
    Idioma = 0;
    DesdeMenu = false;
}
