#pragma once
// The shared pseudo-random source. Every random choice of the program draws
// exactly one uniform value x in [0, 1) and takes entry floor(n * x).

#include <cstdint>

class FuenteAzar {
  public:
    virtual ~FuenteAzar() = default;
    // One uniform single-precision value in [0, 1).
    virtual float Rnd() = 0;
    // The draws from then on follow the seed.
    virtual void Randomize(float semilla) = 0;
    // One choice among n entries: draws one value x and returns floor(n * x).
    virtual int Elige(int n);
};

// The program's generator: a fixed initial state until it is seeded.
class GeneradorAzar final : public FuenteAzar {
  public:
    float Rnd() override;
    void Randomize(float semilla) override;

  private:
    std::uint64_t estado_ = 0x5375706572546972ULL;
};

// The source in use: the program's generator unless a test has put another in.
FuenteAzar &Azar();
// Puts a source in place of the generator; nullptr gives the generator back.
void UsaFuenteAzar(FuenteAzar *fuente);
// Seeds the source in use.
void Randomize(float semilla);
// The time of day in seconds since midnight, as the seed is taken.
float SegundosDesdeMedianoche();

// floor(n * Azar().Rnd()), through the source in use.
inline int AlAzar(int n)
{
    return Azar().Elige(n);
}
