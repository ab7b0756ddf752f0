// Every one of the 3^9 boards, reachable in play or not, every level from -1
// to 5, draws at the edges of [0, 1): nothing breaks and the board changes
// only as the strategies allow.
#include "apoyo.h"
#include "estado.h"
#include "estrategias.h"
#include "movimiento.h"

#include <gtest/gtest.h>

namespace {

// Always the same value, and every choice checked against its list.
class AzarFijo final : public FuenteAzar {
  public:
    explicit AzarFijo(float x) : x_(x) { UsaFuenteAzar(this); }
    ~AzarFijo() override { UsaFuenteAzar(nullptr); }
    float Rnd() override { return x_; }
    Integer Elige(Integer n) override
    {
        const Integer i = FuenteAzar::Elige(n);
        if (n < 1 || i < 0 || i >= n)
            ++fuera;
        return i;
    }
    int fuera = 0;

  private:
    float x_;
};

Board Tablero3(int numero)
{
    Board b;
    for (std::size_t k = 0; k < 9; ++k, numero /= 3)
        b.celda[k] = static_cast<Integer>(numero % 3);
    return b;
}

} // namespace

TEST(TodosLosTableros, StrategiesNeverTouchTheBoardAndAnswerEmptyCells)
{
    using Estrategia = bool (*)(Integer &, Integer &, const Board &);
    const Estrategia estrategias[] = {JugadaGanadora, JugadaBloqueo, JugadaDoble, BloqueaDoble,
                                      JugadaAmenaza,  EsquinaAlAzar, LadoAlAzar,  CasillaAlAzar};
    for (float x : {0.0f, kCasiMedio, kCasiUno}) {
        AzarFijo azar(x);
        for (int n = 0; n < 19683; ++n) {
            const Board b = Tablero3(n);
            for (Estrategia e : estrategias) {
                Board copia = b;
                Integer c = -7, r = -7;
                if (e(c, r, copia)) {
                    ASSERT_TRUE(c >= 0 && c <= 2 && r >= 0 && r <= 2) << ComoTexto(b);
                    ASSERT_EQ(b(c, r), kVacia) << ComoTexto(b);
                } else {
                    ASSERT_EQ(c, -7);
                    ASSERT_EQ(r, -7);
                }
                ASSERT_EQ(copia, b);
            }
        }
        EXPECT_EQ(azar.fuera, 0) << x;
    }
}

TEST(TodosLosTableros, MovimientoPCWritesOneMarkOrFindsTheBoardFull)
{
    for (float x : {0.0f, kCasiMedio, kCasiUno}) {
        AzarFijo azar(x);
        for (Integer nivel = -1; nivel <= 5; ++nivel) {
            Nivel = nivel;
            for (int n = 0; n < 19683; ++n) {
                const Board antes = Tablero3(n);
                Board b = antes;
                const bool movio = MovimientoPC(b);
                ASSERT_EQ(movio, !TableroLleno(antes)) << ComoTexto(antes);
                int cambios = 0;
                for (std::size_t k = 0; k < 9; ++k)
                    if (b.celda[k] != antes.celda[k]) {
                        ++cambios;
                        ASSERT_EQ(antes.celda[k], kVacia);
                        ASSERT_EQ(b.celda[k], kCero);
                    }
                ASSERT_EQ(cambios, movio ? 1 : 0) << ComoTexto(antes) << " level " << nivel;
            }
        }
        EXPECT_EQ(azar.fuera, 0) << x;
    }
}
