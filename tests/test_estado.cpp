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

TEST(Azar, UnseededDrawsRepeatAndSeedingChangesThem)
{
    ReiniciaAzar();
    std::vector<float> primera;
    for (int i = 0; i < 5; ++i)
        primera.push_back(Azar().Rnd());
    ReiniciaAzar();
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(Azar().Rnd(), primera[static_cast<std::size_t>(i)]);

    Randomize(43200.0f);
    const float a = Azar().Rnd();
    Randomize(43201.0f);
    const float b = Azar().Rnd();
    Randomize(43200.0f);
    EXPECT_EQ(Azar().Rnd(), a);
    EXPECT_NE(a, b);
    ReiniciaAzar();
}

TEST(Azar, DrawsAreUniformInTheUnitInterval)
{
    ReiniciaAzar();
    Randomize(SegundosDesdeMedianoche());
    int cuentas[9] = {};
    const int total = 90000;
    for (int i = 0; i < total; ++i) {
        const float x = Azar().Rnd();
        ASSERT_GE(x, 0.0f);
        ASSERT_LT(x, 1.0f);
        ++cuentas[static_cast<int>(9 * x)];
    }
    for (int c : cuentas) // 10000 expected each; 6 standard deviations either way
        EXPECT_NEAR(c, total / 9, 600);
    ReiniciaAzar();
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
