// Worked positions for each strategy: they pin down the scan orders.
#include "apoyo.h"
#include "estrategias.h"

#include <gtest/gtest.h>

namespace {

using Estrategia = bool (*)(Integer &, Integer &, const Board &);

// The cell a strategy answers, as a button number, or -1 when it declines.
// A decline must leave the column and row as they were.
int Boton(Estrategia e, const char *celdas)
{
    const Board b = DesdeTexto(celdas);
    Integer c = 7, r = 7;
    const bool si = e(c, r, b);
    EXPECT_EQ(b, DesdeTexto(celdas)) << "a strategy changed the board";
    if (!si) {
        EXPECT_EQ(c, 7);
        EXPECT_EQ(r, 7);
        return -1;
    }
    return 3 * r + c;
}

} // namespace

TEST(GanarYBloquear, FirstCompletingCellInColumnOrder)
{
    // Wins on 7, 2 and 8; 7 sits in an earlier column.
    EXPECT_EQ(Boton(JugadaGanadora, "00."
                                    "X0X"
                                    "X.."),
              7);
    // The person threatens 2 (top row) and 6 (left column): column 0 comes first.
    EXPECT_EQ(Boton(JugadaBloqueo, "XX."
                                   "X0."
                                   "..0"),
              6);
    EXPECT_EQ(Boton(JugadaGanadora, "XX."
                                    "X0."
                                    "0.."),
              2);
    EXPECT_EQ(Boton(JugadaGanadora, "X.."
                                    ".0."
                                    "..X"),
              -1);
    EXPECT_EQ(Boton(JugadaBloqueo, "X0X"
                                   "0X0"
                                   "0X0"),
              -1);
}

TEST(Dobles, RowAndColumnForksOnly)
{
    // Taking the centre would open row 1 and a diagonal: not a fork here.
    Board b = DesdeTexto("0X."
                         "0.."
                         "X..");
    Integer c = 0, r = 0;
    const Integer computadora = kCero;
    EXPECT_FALSE(BuscaDoble(c, r, b, computadora));
    EXPECT_EQ(c, 0);
    EXPECT_EQ(r, 0);

    // Both 2 and 6 are forks; column 0 is searched first.
    EXPECT_EQ(Boton(JugadaDoble, "0.."
                                 "..."
                                 "..0"),
              6);
    EXPECT_EQ(Boton(JugadaDoble, "..."
                                 "..."
                                 "..."),
              -1);
    EXPECT_EQ(Boton(JugadaDoble, "0.."
                                 "..."
                                 "..."),
              -1);
}

TEST(Dobles, SearchStartsAtTheGivenCellAndEveryColumnAtItsRow)
{
    const Board b = DesdeTexto("0.."
                               "..."
                               "..0"); // forks at (0,2) and (2,0)
    const Integer computadora = kCero;
    Integer c = 1, r = 0;
    ASSERT_TRUE(BuscaDoble(c, r, b, computadora));
    EXPECT_EQ(c, 2);
    EXPECT_EQ(r, 0);

    c = 1;
    r = 1; // column 2 is searched from row 1 on: (2,0) is never looked at
    EXPECT_FALSE(BuscaDoble(c, r, b, computadora));
    c = 1;
    r = 2; // only (1,2) and (2,2)
    EXPECT_FALSE(BuscaDoble(c, r, b, computadora));
    EXPECT_EQ(c, 1);
    EXPECT_EQ(r, 2);
}

TEST(BloqueaDoble, OneForkCellIsTakenWithoutADraw)
{
    AzarGuionado azar;
    EXPECT_EQ(Boton(BloqueaDoble, ".X."
                                  "X0."
                                  "..."),
              0);
    EXPECT_EQ(Boton(BloqueaDoble, "..."
                                  "..."
                                  "..."),
              -1);
    EXPECT_EQ(Boton(BloqueaDoble, "..."
                                  ".X."
                                  "..."),
              -1);
    EXPECT_EQ(azar.Sacadas(), 0);
}

TEST(BloqueaDoble, TwoForkCellsDrawAmongTheForcingMoves)
{
    // The person's forks are 7 and 5; the forcing moves, in row order, are
    // 1, 2, 3 and 6, each listed once.
    AzarGuionado azar({0.0f, 0.25f, 0.5f, kCasiUno, 0.2499999f});
    const char *pos = "0.."
                      ".X."
                      "..X";
    EXPECT_EQ(Boton(BloqueaDoble, pos), 1);
    EXPECT_EQ(Boton(BloqueaDoble, pos), 2);
    EXPECT_EQ(Boton(BloqueaDoble, pos), 3);
    EXPECT_EQ(Boton(BloqueaDoble, pos), 6);
    EXPECT_EQ(Boton(BloqueaDoble, pos), 1);
    EXPECT_EQ(azar.Sacadas(), 5);
    EXPECT_EQ(azar.Excedidas(), 0);
}

TEST(Amenaza, AimsAtTheFirstCellInColumnOrderWithTheFirstMoveInRowOrder)
{
    // Aims at 0 along the diagonal through 8.
    EXPECT_EQ(Boton(JugadaAmenaza, ".X."
                                   "X0."
                                   "..."),
              8);
    // Nothing aims at 0; 3 is aimed at along row 1 by the move 5.
    EXPECT_EQ(Boton(JugadaAmenaza, "..."
                                   ".0."
                                   "..X"),
              5);
    EXPECT_EQ(Boton(JugadaAmenaza, "X.."
                                   "..."
                                   "..."),
              -1);
    // Every line through the computer's mark holds a person's mark.
    EXPECT_EQ(Boton(JugadaAmenaza, "X.X"
                                   "X0X"
                                   ".X."),
              -1);
}

TEST(AlAzar, ListsInTheirOrderAndDrawOnlyWhenThereIsAChoice)
{
    AzarGuionado azar({0.0f, kCasiUno, kCasiUno, kCasiUno, 0.0f, 1.5f / 9.0f, 0.5f});
    EXPECT_EQ(Boton(EsquinaAlAzar, "..."
                                   "..."
                                   "..."),
              0);
    EXPECT_EQ(Boton(EsquinaAlAzar, "..."
                                   "..."
                                   "..."),
              8);
    EXPECT_EQ(Boton(LadoAlAzar, "..."
                                "..."
                                "..."),
              7);
    EXPECT_EQ(Boton(CasillaAlAzar, "..."
                                   "..."
                                   "..."),
              8);
    EXPECT_EQ(Boton(CasillaAlAzar, "..."
                                   "..."
                                   "..."),
              0);
    EXPECT_EQ(Boton(CasillaAlAzar, "..."
                                   "..."
                                   "..."),
              3); // column order: 0, 3, 6, 1...
    EXPECT_EQ(Boton(EsquinaAlAzar, "X.0"
                                   "..."
                                   "..X"),
              6); // the one empty corner
    EXPECT_EQ(azar.Sacadas(), 7);

    EXPECT_EQ(Boton(EsquinaAlAzar, "X.0"
                                   "..."
                                   "0.X"),
              -1);
    EXPECT_EQ(Boton(LadoAlAzar, "X0X"
                                "0.0"
                                "X0X"),
              -1);
    EXPECT_EQ(Boton(CasillaAlAzar, "X0X"
                                   "0X0"
                                   "0X0"),
              -1);
    EXPECT_EQ(azar.Sacadas(), 7);
}
