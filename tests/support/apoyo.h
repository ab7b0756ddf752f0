#pragma once
// Helpers shared by the tests and the benchmarks.

#include "azar.h"
#include "tablero.h"

#include <string>
#include <vector>

// A board from nine characters in button order (row by row from the top left):
// '.' empty, 'X' the person's mark, '0' the computer's; and back.
Board DesdeTexto(const std::string &celdas);
std::string ComoTexto(const Board &b);

// The source in use while it lives: hands out scripted values (0 past the
// end, counted as an overrun), counts the draws, records the size of every
// choice asked for, and every seed with the draws made before it.
struct AzarGuionado final : FuenteAzar {
    explicit AzarGuionado(std::vector<float> v = {}) : valores(std::move(v))
    {
        UsaFuenteAzar(this);
    }
    ~AzarGuionado() override { UsaFuenteAzar(nullptr); }
    float Rnd() override;
    void Randomize(float semilla) override { semillas.emplace_back(semilla, sacadas); }
    int Elige(int n) override { return tamanos.push_back(Integer(n)), FuenteAzar::Elige(n); }
    std::vector<float> valores;
    std::vector<Integer> tamanos;
    std::vector<std::pair<float, int>> semillas;
    int sacadas = 0;
    int excedidas = 0;
};

// The largest float below 1.
constexpr float kCasiUno = 0.99999994f;

// The lines of a file of tests/datos that are neither empty nor comments.
std::vector<std::string> Filas(const std::string &archivo);
