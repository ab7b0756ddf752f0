#pragma once
// Exact analysis of play against the computer: every random choice of the
// computer is followed down each of its floor(n*x) branches, weighted 1/n.

#include "tablero.h"

#include <map>
#include <string>
#include <vector>

// The person's best chance to win against one level, playing "X".
class Analisis {
  public:
    explicit Analisis(Integer nivel) : nivel_(nivel) {}
    // The person is to move on `tablero`.
    double AlMover(const Board &tablero);
    // The computer answers next on `tablero` (on the empty board: it opens).
    double TrasJugada(const Board &tablero, std::vector<float> guion = {});

  private:
    Integer nivel_;
    std::map<std::string, double> memo_;
};
