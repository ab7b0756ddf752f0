#pragma once
// Helpers shared by the tests and the benchmarks.

#include "azar.h"
#include "tablero.h"

#include <string>
#include <vector>

// A board from nine characters in button order (row by row from the top left):
// '.' empty, 'X' the person's mark, '0' the computer's.
Board DesdeTexto(const std::string &celdas);
std::string ComoTexto(const Board &b);
// The board's number in base 3, 0 to 19682: a key for tables of boards.
int Clave(const Board &b);

// A source that hands out scripted values and counts the draws. A draw past
// the end of the script is counted as an overrun and gives 0.
class AzarGuionado : public FuenteAzar {
  public:
    explicit AzarGuionado(std::vector<float> valores = {});
    ~AzarGuionado() override;
    float Rnd() override;
    void Agrega(std::vector<float> valores);
    int Sacadas() const { return sacadas_; }
    int Excedidas() const { return excedidas_; }

  private:
    std::vector<float> valores_;
    std::size_t siguiente_ = 0;
    int sacadas_ = 0;
    int excedidas_ = 0;
};

// Every variable of the game state back to zero, False or empty, as before Main.
void BorraEstado();

// The largest float below 1 and below 0.5.
constexpr float kCasiUno = 0.99999994f;
constexpr float kCasiMedio = 0.49999997f;
