// The program from start to exit: the language window first, the menu commands.
#include "apoyo_ui.h"
#include "estado.h"
#include "idioma.h"

#include <QLabel>
#include <QRadioButton>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

class Programa : public ::testing::Test {
  protected:
    void SetUp() override { ReiniciaPrograma(); }
    void TearDown() override { ReiniciaPrograma(); }
};

// Runs `accion`, failing (and closing the window) if any modal window opens.
void SinDialogo(const std::function<void()> &accion)
{
    QTimer vigia;
    QObject::connect(&vigia, &QTimer::timeout, [] {
        if (QWidget *m = QApplication::activeModalWidget()) {
            ADD_FAILURE() << "a window opened";
            m->close();
        }
    });
    vigia.start(1);
    accion();
}

// Inside the language window opened from the menu: `paso`, then Exit.
void EnIdioma(const std::function<void(ui::VentanaIdioma &)> &paso)
{
    CuandoModal([paso](QWidget *w) {
        auto *s = dynamic_cast<ui::VentanaIdioma *>(w);
        ASSERT_NE(s, nullptr);
        paso(*s);
        if (frmSeleccion.Existe())
            Clic(s->cmdSalir);
    });
    Form1().mnuSeleccionIdioma->trigger();
}

bool AlgunaVisible()
{
    for (QWidget *w : QApplication::topLevelWidgets())
        if (w->isVisible())
            return true;
    return false;
}

} // namespace

TEST_F(Programa, StartUpOpensTheLanguageWindowInSpanish)
{
    Main();
    EXPECT_EQ(Idioma, 1);
    EXPECT_EQ(Nivel, 3);
    EXPECT_EQ(Modo, 0);
    EXPECT_FALSE(Jugando);
    EXPECT_FALSE(Form1.Existe());
    ui::VentanaIdioma &s = frmSeleccion();
    EXPECT_TRUE(s.isVisible());
    EXPECT_TRUE(s.optEspañol->isChecked());
    EXPECT_EQ(s.windowTitle(), QStringLiteral("Selección de idioma"));
    EXPECT_EQ(s.lblGracias->text(), "Gracias por jugar mi juego");
    EXPECT_EQ(s.cmdAceptar->text(), "&Aceptar");
    EXPECT_EQ(s.cmdSalir->text(), "&Salir");
    EXPECT_EQ(strTuTurno, "Tu turno"); // loaded before the main window exists

    Clic(s.cmdAceptar);
    EXPECT_FALSE(frmSeleccion.Existe());
    ASSERT_TRUE(Form1.Existe());
    EXPECT_TRUE(Form1().isVisible());
    EXPECT_EQ(Titulo(), "El famoso juego del tirlo (Nivel 3)");
    EXPECT_EQ(Modo, 1);
    EXPECT_TRUE(Jugando);
    EXPECT_FALSE(Form1().cmdnuevo->isEnabled());
}

TEST_F(Programa, EnglishChosenFirstGivesEnglishEverywhere)
{
    Main();
    ui::VentanaIdioma &s = frmSeleccion();
    Clic(s.optIngles);
    EXPECT_EQ(s.windowTitle(), "Idiom selection");
    EXPECT_EQ(s.lblGracias->text(), "Thank you for to play my game");
    EXPECT_EQ(s.cmdAceptar->text(), "&Ok");
    EXPECT_EQ(s.cmdSalir->text(), "&Exit");
    EXPECT_EQ(Idioma, 0);
    EXPECT_FALSE(Form1.Existe()); // at start-up nothing else is touched
    Clic(s.cmdAceptar);
    EXPECT_EQ(Titulo(), "The tic tac toe (Level 3)");
    EXPECT_EQ(Form1().cmdnuevo->text(), "&New game");
    EXPECT_EQ(Estado(), "Your turn");
}

TEST_F(Programa, ExitAtStartUpEndsWithoutTheMainWindow)
{
    Main();
    Clic(frmSeleccion().optIngles);
    EXPECT_EQ(CorreHastaElFin([] { Clic(frmSeleccion().cmdSalir); }), 0);
    EXPECT_FALSE(frmSeleccion.Existe());
    EXPECT_FALSE(Form1.Existe());
    EXPECT_FALSE(AlgunaVisible());
}

TEST_F(Programa, LanguageFromTheMenuSwitchesEveryWindowAtOnce)
{
    Arranca(false);
    EnIdioma([](ui::VentanaIdioma &s) {
        EXPECT_TRUE(DesdeMenu);
        EXPECT_TRUE(s.optEspañol->isChecked());
        Clic(s.optIngles);
        EXPECT_EQ(Titulo(), "The tic tac toe (Level 3)");
        EXPECT_EQ(Form1().cmdnuevo->text(), "&New game");
        EXPECT_EQ(frmNivel().windowTitle(), "Level");
        EXPECT_EQ(frmoponentes().Command2->text(), "&Cancel");
        EXPECT_EQ(Estado(), "Tu turno"); // until the next message
    });
    EXPECT_EQ(Idioma, 0);
    EXPECT_EQ(Titulo(), "The tic tac toe (Level 3)");
    EXPECT_EQ(Estado(), "Tu turno");

    // English in force: the window opens on English with its loaded texts.
    EnIdioma([](ui::VentanaIdioma &s) {
        EXPECT_TRUE(s.optIngles->isChecked());
        EXPECT_EQ(s.lblGracias->text(), "Thank you for to play my game");
        Clic(s.optEspañol);
        EXPECT_EQ(Form1().mnuSalir->text(), "&Salir");
        Clic(s.cmdAceptar);
    });
    EXPECT_TRUE(DesdeMenu);
    EXPECT_EQ(Titulo(), "El famoso juego del tirlo (Nivel 3)");
}

TEST_F(Programa, ModeSwitchesAndTheSameModeDoesNothing)
{
    AzarGuionado azar({kPersonaAbre, 0.0f});
    Arranca(false);
    Juega({4});
    const std::string tablero = Casillas();
    const int sacadas = azar.Sacadas();
    SinDialogo([] { Form1().mnuvspc->trigger(); });
    EXPECT_EQ(Casillas(), tablero);
    EXPECT_EQ(azar.Sacadas(), sacadas);

    // Level 1, then two players cancelled: the default names.
    CuandoModal([](QWidget *w) {
        Clic(dynamic_cast<ui::DialogoNivel *>(w)->optNivel.Opcion(0));
        w->close();
    });
    azar.Agrega({kPersonaAbre});
    Form1().mnuNivel->trigger();
    EXPECT_EQ(Nivel, 1);
    RespondeOponentes("", "", true);
    azar.Agrega({0.0f, 0.0f});
    Form1().mnu1vs2->trigger();
    EXPECT_EQ(azar.Sacadas(), sacadas + 3); // the level's new game, the extra draw, the turn
    EXPECT_EQ(Modo, 2);
    EXPECT_EQ(Estado(), "Turno de Primer jugador");
    EXPECT_EQ(Titulo(), "El famoso juego del tirlo (Nivel 1)");

    const int antes = azar.Sacadas();
    Juega({0});
    SinDialogo([] { Form1().mnu1vs2->trigger(); });
    EXPECT_EQ(Casillas(), "X........");
    EXPECT_EQ(azar.Sacadas(), antes);

    // Back against the computer: level 3 again.
    azar.Agrega({kPersonaAbre});
    Form1().mnuvspc->trigger();
    EXPECT_EQ(Nivel, 3);
    EXPECT_EQ(Titulo(), "El famoso juego del tirlo (Nivel 3)");
    EXPECT_EQ(Casillas(), ".........");
    EXPECT_EQ(Jugador1, "Primer jugador"); // the names stay
    EXPECT_EQ(azar.Excedidas(), 0);
}

TEST_F(Programa, NamesChangedMidGameKeepTheBoard)
{
    AzarGuionado azar({kPersonaAbre, 0.0f, 0.0f});
    Arranca(false);
    RespondeOponentes("Ana", "Beto");
    Form1().mnu1vs2->trigger();
    Juega({0});
    EXPECT_EQ(Estado(), "Turno de Beto");
    RespondeOponentes("Carla", "Dani");
    Form1().mnuoponentes->trigger();
    EXPECT_EQ(Casillas(), "X........");
    EXPECT_EQ(Estado(), "Turno de Beto");
    Juega({4});
    EXPECT_EQ(Estado(), "Turno de Carla");
}

TEST_F(Programa, LevelDialogClosedUnchangedStillStartsANewGame)
{
    AzarGuionado azar({kPersonaAbre, kPersonaAbre});
    Arranca(false);
    Juega({0});
    CuandoModal([](QWidget *w) { Clic(dynamic_cast<ui::DialogoNivel *>(w)->cmdok); });
    Form1().mnuNivel->trigger();
    EXPECT_EQ(Nivel, 3);
    EXPECT_EQ(Casillas(), ".........");
    EXPECT_TRUE(Jugando);
}

TEST_F(Programa, ExitFromTheMenuEndsTheProgram)
{
    Arranca(false);
    Juega({0});
    EXPECT_EQ(CorreHastaElFin([] { Form1().mnuSalir->trigger(); }), 0);
    EXPECT_FALSE(Form1.Existe());
    EXPECT_FALSE(AlgunaVisible());
}

// One session per language: every outcome against the computer, ignored
// clicks, two players to a win, exit.
class Sesion : public Programa, public ::testing::WithParamInterface<bool> {};

TEST_P(Sesion, FromStartToExit)
{
    const bool ingles = GetParam();
    const auto texto = [ingles](const char *es, const char *en) {
        return QString::fromUtf8(ingles ? en : es);
    };
    // The centre; the corner 0, then the forcing move 1; the person forks
    // through 2 and wins on 5, and the computer does not answer the win.
    AzarGuionado azar({kPersonaAbre, 0.0f, 0.0f});
    Arranca(ingles);
    EXPECT_EQ(Estado(), texto("Tu turno", "Your turn"));
    Juega({4});
    EXPECT_EQ(Casillas(), "0...X....");
    Juega({8, 2});
    EXPECT_EQ(Casillas(), "00X.X.0.X");
    Juega({5});
    EXPECT_EQ(Estado(), texto("¡Felicidades tu ganas!", "Congratulations, you win!"));
    EXPECT_TRUE(Form1().cmdnuevo->isEnabled());
    Juega({3, 7}); // after the end: ignored
    EXPECT_EQ(Casillas(), "00X.XX0.X");

    // 0, 1 and 3 let the computer complete 2-4-6; a taken square is ignored.
    azar.Agrega({kPersonaAbre});
    Clic(Form1().cmdnuevo);
    EXPECT_FALSE(Form1().cmdnuevo->isEnabled());
    Juega({0, 1, 1});
    EXPECT_EQ(Casillas(), "XX0.0....");
    Juega({3});
    EXPECT_EQ(Casillas(), "XX0X0.0..");
    EXPECT_EQ(Estado(), texto("Lo siento tu pierdes", "You lose"));

    // A draw on the person's fifth move: the computer is not asked again.
    azar.Agrega({kPersonaAbre, 0.0f});
    Clic(Form1().cmdnuevo);
    Juega({0, 8, 7, 2, 3});
    EXPECT_EQ(Casillas(), "X0XX000XX");
    EXPECT_EQ(Estado(), texto("¡Juego empatado!", "Draw game!"));

    // The computer opens, and its reply fills the board: a draw, then a loss.
    azar.Agrega({kPCAbre, 0.0f});
    Clic(Form1().cmdnuevo);
    EXPECT_EQ(Casillas(), "....0....");
    Juega({0, 3, 2, 7});
    EXPECT_EQ(Casillas(), "X0XX000X0");
    EXPECT_EQ(Estado(), texto("¡Juego empatado!", "Draw game!"));
    azar.Agrega({kPCAbre});
    Clic(Form1().cmdnuevo);
    Juega({0, 3, 2, 8});
    EXPECT_EQ(Casillas(), "X0XX0000X");
    EXPECT_EQ(Estado(), texto("Lo siento tu pierdes", "You lose"));

    azar.Agrega({0.0f, 0.0f});
    RespondeOponentes("Ana", "Beto");
    Form1().mnu1vs2->trigger();
    Juega({0, 3, 1, 4});
    EXPECT_EQ(Estado(), texto("Turno de Ana", "Ana"));
    Juega({2});
    EXPECT_EQ(Estado(), texto("¡Gana el jugador Ana!", "Win Ana!"));
    EXPECT_EQ(azar.Excedidas(), 0);

    EXPECT_EQ(CorreHastaElFin([] { Form1().close(); }), 0);
    EXPECT_FALSE(AlgunaVisible());
}

INSTANTIATE_TEST_SUITE_P(Idiomas, Sesion, ::testing::Values(false, true));
