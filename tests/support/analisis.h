#pragma once
// Exact analysis of play against the computer: every random choice of the
// computer is followed down each of its floor(n*x) branches, weighted 1/n.

#include "tablero.h"

#include <vector>

struct Respuesta {
    Board tablero; // the board after the computer's move
    double probabilidad;
    int sacadas; // random choices made on the way
    bool movio;  // what MovimientoPC returned
};

// Every distinct board MovimientoPC can leave, at the current Nivel.
std::vector<Respuesta> RespuestasPC(const Board &tablero);

// Who opened the games whose positions are wanted.
enum class Abre { Persona, Computadora, Cualquiera };

// Every distinct position with the computer to move that play against the
// level `nivel` reaches, whatever the person plays and the computer draws.
std::vector<Board> PosicionesPC(Integer nivel, Abre quien);

// The person's best chance to win against one level, playing "X".
class Analisis {
  public:
    explicit Analisis(Integer nivel);
    // The person is to move on `tablero`.
    double AlMover(const Board &tablero);
    // The person has just moved to give `tablero`; the computer answers next.
    double TrasJugada(const Board &tablero);
    double HumanoPrimero() { return AlMover(Board{}); }
    double PCPrimero();

  private:
    Integer nivel_;
    std::vector<double> memo_;
};
