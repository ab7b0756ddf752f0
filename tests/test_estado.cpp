#include "apoyo.h"
#include "azar.h"
#include "estado.h"

#include <gtest/gtest.h>

#include <set>

TEST(Estado, StartUpDefaults)
{
    BorraEstado();
    Modo = 2; // Main leaves mode, turn, game and board alone
    ValoresIniciales();
    EXPECT_EQ(Idioma, 1);
    EXPECT_EQ(Jugador1, "");
    EXPECT_EQ(Jugador2, "");
    EXPECT_FALSE(DesdeMenu);
    EXPECT_EQ(Nivel, 3);
    EXPECT_EQ(Modo, 2);

    BorraEstado();
    ValoresIniciales();
    EXPECT_EQ(Modo, 0);
    EXPECT_EQ(Turno, 0);
    EXPECT_FALSE(Jugando);
    EXPECT_EQ(Tablero, Board{});
}

TEST(Azar, AChoiceDrawsOnceAndTakesTheFloorOfNTimesX)
{
    AzarGuionado azar({0.0f, kCasiUno, kCasiMedio, 0.5f, kCasiUno});
    EXPECT_EQ(AlAzar(9), 0);
    EXPECT_EQ(AlAzar(9), 8);
    EXPECT_EQ(AlAzar(2), 0);
    EXPECT_EQ(AlAzar(2), 1);
    EXPECT_EQ(AlAzar(7), 6);
    EXPECT_EQ(azar.Sacadas(), 5);
}

TEST(Azar, SecondsSinceMidnightAreWithinOneDay)
{
    const float s = SegundosDesdeMedianoche();
    EXPECT_GE(s, 0.0f);
    EXPECT_LT(s, 86400.0f);
}
