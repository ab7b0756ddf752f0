// Whole games in the main window, driven by clicks, with scripted draws.
#include "apoyo_ui.h"
#include "estado.h"

#include <gtest/gtest.h>

namespace {

// x >= 0.5: the person opens against the computer; below, the computer does.
constexpr float kPersonaAbre = 0.75f;
constexpr float kPCAbre = 0.25f;

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

TEST_F(Partidas, AgainstTheComputerEveryOutcomeInSpanish)
{
    // The centre opening; the corner 0, then the forcing move 1; the person
    // forks through 2 and wins on 5.
    AzarGuionado azar({kPersonaAbre, 0.0f, 0.0f});
    Arranca(false);
    EXPECT_EQ(Casillas(), ".........");
    EXPECT_EQ(Estado(), "Tu turno");
    Juega({4});
    EXPECT_EQ(Casillas(), "0...X....");
    EXPECT_EQ(Estado(), "Tu turno");
    Juega({8, 2});
    EXPECT_EQ(Casillas(), "00X.X.0.X");
    Juega({5});
    EXPECT_EQ(Estado(), QStringLiteral("¡Felicidades tu ganas!"));
    EXPECT_FALSE(Jugando);
    EXPECT_TRUE(Form1().cmdnuevo->isEnabled());
    EXPECT_EQ(Casillas(), "00X.XX0.X"); // the computer did not answer the win

    // Clicks after the end change nothing.
    Juega({3, 7});
    EXPECT_EQ(Casillas(), "00X.XX0.X");
    EXPECT_EQ(Estado(), QStringLiteral("¡Felicidades tu ganas!"));

    // A loss: 0, 1 and 3 let the computer complete 2-4-6.
    azar.Agrega({kPersonaAbre});
    Clic(Form1().cmdnuevo);
    EXPECT_EQ(Casillas(), ".........");
    EXPECT_FALSE(Form1().cmdnuevo->isEnabled());
    Juega({0, 1});
    Juega({1}); // taken: ignored
    EXPECT_EQ(Casillas(), "XX0.0....");
    Juega({3});
    EXPECT_EQ(Estado(), "Lo siento tu pierdes");
    EXPECT_EQ(Casillas(), "XX0X0.0..");

    // A draw on the person's fifth move: the computer is not asked again.
    azar.Agrega({kPersonaAbre, 0.0f});
    Clic(Form1().cmdnuevo);
    Juega({0, 8, 7, 2, 3});
    EXPECT_EQ(Casillas(), "X0XX000XX");
    EXPECT_EQ(Estado(), QStringLiteral("¡Juego empatado!"));
    EXPECT_EQ(azar.Excedidas(), 0);
}

TEST_F(Partidas, TheComputersReplyFillsTheBoardInEnglish)
{
    AzarGuionado azar({kPCAbre, 0.0f});
    Arranca(true);
    EXPECT_EQ(Casillas(), "....0....");
    EXPECT_EQ(Estado(), "Your turn");
    Juega({0, 3, 2, 7});
    EXPECT_EQ(Casillas(), "X0XX000X0");
    EXPECT_EQ(Estado(), "Draw game!");

    azar.Agrega({kPCAbre});
    Clic(Form1().cmdnuevo);
    Juega({0, 3, 2, 8});
    EXPECT_EQ(Casillas(), "X0XX0000X");
    EXPECT_EQ(Estado(), "You lose");
    EXPECT_TRUE(TableroLleno(Tablero));

    azar.Agrega({kPersonaAbre, 0.0f, 0.0f});
    Clic(Form1().cmdnuevo);
    Juega({4, 8, 2, 5});
    EXPECT_EQ(Estado(), "Congratulations, you win!");
    EXPECT_EQ(azar.Excedidas(), 0);
}

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
