// Games in the main window, driven by clicks, with scripted draws (the games
// against the computer to every outcome are in the whole sessions).
#include "apoyo_ui.h"
#include "estado.h"

#include <gtest/gtest.h>

namespace {

class Partidas : public ::testing::Test {
  protected:
    void SetUp() override { ReiniciaPrograma(); }
    void TearDown() override { ReiniciaPrograma(); }
};

// Switches to two players with the given names; the new game's draw `turno`
// decides who opens (below 0.5 the first player).
void DosJugadores(AzarGuionado &azar, const QString &uno, const QString &dos, float turno)
{
    azar.Agrega({0.9f, turno});
    RespondeOponentes(uno, dos);
    Form1().mnu1vs2->trigger();
}

} // namespace

TEST_F(Partidas, CellsAndCaptionsStayInStep)
{
    AzarGuionado azar({kPCAbre});
    Arranca(false);
    for (int k = 0; k < 9; ++k) {
        const Integer v = Tablero(k % 3, k / 3);
        const std::string marca(1, Casillas()[static_cast<std::size_t>(k)]);
        EXPECT_EQ(marca, v == kEquis ? "X" : v == kCero ? "0" : ".") << k;
    }
    EXPECT_EQ(Tablero(1, 1), kCero);
}

TEST_F(Partidas, TwoPlayersInSpanish)
{
    AzarGuionado azar({kPersonaAbre});
    Arranca(false);
    DosJugadores(azar, "Ana", "Beto", 0.1f);
    EXPECT_EQ(Modo, 2);
    EXPECT_EQ(Turno, 1);
    EXPECT_EQ(Estado(), "Turno de Ana");
    Juega({0});
    EXPECT_EQ(Estado(), "Turno de Beto");
    Juega({3, 1, 4});
    EXPECT_EQ(Casillas(), "XX.00....");
    Juega({2});
    EXPECT_EQ(Estado(), QStringLiteral("¡Gana el jugador Ana!"));
    EXPECT_EQ(Turno, 1); // still names the winner
    EXPECT_TRUE(Form1().cmdnuevo->isEnabled());

    // The second player opens this time and plays "0"; a full board is a draw.
    azar.Agrega({0.6f});
    Clic(Form1().cmdnuevo);
    EXPECT_EQ(Estado(), "Turno de Beto");
    Juega({0, 1, 2, 4, 3, 5, 7, 6, 8});
    EXPECT_EQ(Casillas(), "0X00XXX00");
    EXPECT_EQ(Estado(), QStringLiteral("¡Juego empatado!"));
    EXPECT_EQ(azar.Excedidas(), 0);
}

TEST_F(Partidas, TwoPlayersInEnglishAndAWinOnTheNinthSquare)
{
    AzarGuionado azar({kPersonaAbre});
    Arranca(true);
    DosJugadores(azar, "Ana", "Beto", 0.2f);
    EXPECT_EQ(Estado(), "Ana");
    Juega({0});
    EXPECT_EQ(Estado(), "Beto");
    // Ana fills the ninth square and completes 2-4-6 with it.
    Juega({1, 2, 3, 4, 5, 7, 8, 6});
    EXPECT_EQ(Casillas(), "X0X0X0XX0");
    EXPECT_TRUE(TableroLleno(Tablero));
    EXPECT_EQ(Estado(), "Win Ana!");
}
