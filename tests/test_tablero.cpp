#include "apoyo.h"
#include "tablero.h"

#include <gtest/gtest.h>

TEST(Tablero, CellsAreAddressedColumnThenRowInButtonOrder)
{
    Board b;
    b(2, 0) = kEquis; // button 2: top right
    b(0, 2) = kCero;  // button 6: bottom left
    EXPECT_EQ(ComoTexto(b), "..X"
                            "..."
                            "0..");
}

TEST(Tablero, LinesNeedThreeEqualMarks)
{
    EXPECT_FALSE(HayGanador(Board{}));
    EXPECT_FALSE(TableroLleno(Board{}));

    for (const char *linea : {"X..X..X..", ".X..X..X.", "..X..X..X", "000......", "...000...",
                              "......000", "X...X...X", "..0.0.0.."})
        EXPECT_TRUE(HayGanador(DesdeTexto(linea))) << linea;
    for (const char *casi : {"X..X..0..", "00X......", "X...X...0", "..0.X.0.."})
        EXPECT_FALSE(HayGanador(DesdeTexto(casi))) << casi;
}

TEST(Tablero, ColumnAndRowOneAreTheMiddleLines)
{
    const Board medioColumna = DesdeTexto(".X."
                                          ".X."
                                          ".X.");
    const Board medioFila = DesdeTexto("..."
                                       "000"
                                       "...");
    const Integer uno = 1;
    EXPECT_TRUE(RevisaColumna(uno, medioColumna));
    EXPECT_FALSE(RevisaFila(uno, medioColumna));
    EXPECT_TRUE(RevisaFila(uno, medioFila));
    EXPECT_FALSE(RevisaColumna(uno, medioFila));
}

TEST(Tablero, FullMeansNoEmptyCellEvenWithALine)
{
    EXPECT_FALSE(TableroLleno(DesdeTexto("X0X"
                                         "0X0"
                                         "0X.")));
    EXPECT_FALSE(TableroLleno(DesdeTexto(".0X"
                                         "0X0"
                                         "0X0")));
    const Board llenoConLinea = DesdeTexto("XXX"
                                           "00X"
                                           "0X0");
    EXPECT_TRUE(TableroLleno(llenoConLinea));
    EXPECT_TRUE(HayGanador(llenoConLinea));
}

TEST(Tablero, CopyTakesTheDestinationFirstAndClearEmpties)
{
    const Board lleno = DesdeTexto("X0X"
                                   "0X0"
                                   "0X0");
    Board destino;
    Board origen = lleno;
    CopiaTablero(destino, origen);
    EXPECT_EQ(destino, lleno);
    EXPECT_EQ(origen, lleno);

    LimpiaTablero(destino);
    EXPECT_EQ(destino, Board{});
}

TEST(Tablero, ListSearchLooksOnlyAtTheCountedEntries)
{
    ListaCasillas lista{};
    lista[0] = {1, 2};
    lista[1] = {2, 0};
    const Integer c = 2, r = 0;
    const Integer cero = 0, uno = 1, dos = 2, menos = -1;
    EXPECT_TRUE(NoEstaEnLista(c, r, lista, cero));
    EXPECT_TRUE(NoEstaEnLista(c, r, lista, menos));
    EXPECT_TRUE(NoEstaEnLista(c, r, lista, uno)); // the match sits at index 1
    EXPECT_FALSE(NoEstaEnLista(c, r, lista, dos));
    EXPECT_TRUE(NoEstaEnLista(r, c, lista, dos)); // (0, 2) is not (2, 0)
}
