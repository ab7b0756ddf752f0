#include "azar.h"

#include <chrono>
#include <cstring>
#include <ctime>

namespace {

GeneradorAzar generador;
FuenteAzar *fuenteActual = &generador;

std::uint64_t Mezcla(std::uint64_t z)
{
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

} // namespace

int FuenteAzar::Elige(int n)
{
    const float x = Rnd();
    // In double the product is exact, so x just below 1 gives n - 1, never n.
    return static_cast<int>(static_cast<double>(n) * static_cast<double>(x));
}

float GeneradorAzar::Rnd()
{
    estado_ += 0x9E3779B97F4A7C15ULL;
    // 24 random bits: every value is a multiple of 2^-24 below 1.
    return static_cast<float>(Mezcla(estado_) >> 40) * (1.0f / 16777216.0f);
}

void GeneradorAzar::Randomize(float semilla)
{
    std::uint32_t bits = 0;
    std::memcpy(&bits, &semilla, sizeof bits);
    estado_ = Mezcla(0x5375706572546972ULL ^ bits);
}

FuenteAzar &Azar()
{
    return *fuenteActual;
}

void UsaFuenteAzar(FuenteAzar *fuente)
{
    fuenteActual = fuente ? fuente : &generador;
}

void Randomize(float semilla)
{
    fuenteActual->Randomize(semilla);
}

float SegundosDesdeMedianoche()
{
    const std::time_t ahora = std::time(nullptr);
    // Called on the one thread, so the standard's shared result will do.
    const std::tm local = *std::localtime(&ahora);
    return static_cast<float>(local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec);
}
