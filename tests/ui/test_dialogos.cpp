// The level, opponents and About dialogs, opened as the menu opens them.
#include "apoyo_ui.h"
#include "estado.h"
#include "idioma.h"

#include <QLabel>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class Dialogos : public ::testing::Test {
  protected:
    void SetUp() override { ReiniciaPrograma(); }
    void TearDown() override { ReiniciaPrograma(); }
};

// Opens the opponents dialog as the menu does and runs `paso` inside it.
void EnOponentes(const std::function<void(ui::DialogoOponentes &)> &paso)
{
    bool abierto = false;
    CuandoModal([&](QWidget *w) {
        abierto = true;
        auto *d = dynamic_cast<ui::DialogoOponentes *>(w);
        ASSERT_NE(d, nullptr);
        paso(*d);
        if (frmoponentes.Existe())
            d->close();
    });
    Form1().mnuoponentes_Click();
    EXPECT_TRUE(abierto);
}

// Presses OK (or sends `tecla` to the focused control) and expects the
// information box with this text; the dialog stays open.
void EsperaMensaje(const std::function<void()> &accion, const QString &titulo, const QString &texto)
{
    Mensaje m;
    CuandoModal([&](QWidget *w) { m = CierraMensaje(w); });
    accion();
    EXPECT_EQ(m.titulo, titulo);
    EXPECT_EQ(m.texto, texto);
}

void Escribe(ui::DialogoOponentes &d, const QString &uno, const QString &dos)
{
    d.Text1[0]->clear();
    d.Text1[1]->clear();
    Teclea(d.Text1[0], uno);
    Teclea(d.Text1[1], dos);
}

const QString kFalta = QStringLiteral("Favor de introducir los nombres de los oponentes");
const QString kIguales = QStringLiteral("Error: los oponentes son los mismos.");

} // namespace

TEST_F(Dialogos, OpponentsRefuseMissingAndEqualNames)
{
    Arranca(false);
    Jugador1 = "antes";
    EnOponentes([](ui::DialogoOponentes &d) {
        EXPECT_EQ(d.focusWidget(), d.Command1);
        const auto ok = [&d] { Clic(d.Command1); };
        const QString info = QStringLiteral("Información");

        EsperaMensaje(ok, info, kFalta);
        Escribe(d, "   ", "Beto"); // spaces only
        EsperaMensaje(ok, info, kFalta);
        Escribe(d, "Ana", "");
        d.Text1[1]->setFocus();
        EsperaMensaje(ok, info, kFalta);
        EXPECT_EQ(d.focusWidget(), d.Text1[0]); // the first box, also for the second name
        Escribe(d, "Ana", "Ana");
        EsperaMensaje(ok, info, kIguales);
        EXPECT_EQ(d.focusWidget(), d.Text1[0]);
        EXPECT_TRUE(frmoponentes.Existe());
        EXPECT_EQ(Jugador1, "antes");

        // Enter in either box is OK, messages included.
        EsperaMensaje([&d] { QTest::keyClick(d.Text1[1], Qt::Key_Return); }, info, kIguales);
        EXPECT_TRUE(frmoponentes.Existe());
        Escribe(d, "  Ana  ", "Ana ");
        QTest::keyClick(d.Text1[1], Qt::Key_Enter);
    });
    EXPECT_FALSE(frmoponentes.Existe());
    EXPECT_EQ(Jugador1, "Ana"); // "  Ana  " and "Ana " differ as typed
    EXPECT_EQ(Jugador2, "Ana");
}

TEST_F(Dialogos, OpponentsCaseLimitCancelAndClose)
{
    Arranca(false);
    EnOponentes([](ui::DialogoOponentes &d) {
        Escribe(d, "Ana", "ana");
        QTest::keyClick(d.Text1[0], Qt::Key_Return);
    });
    EXPECT_EQ(Jugador1, "Ana");
    EXPECT_EQ(Jugador2, "ana");

    EnOponentes([](ui::DialogoOponentes &d) {
        EXPECT_TRUE(d.Text1[0]->text().isEmpty()); // names in force are not shown
        Teclea(d.Text1[0], QStringLiteral("Maximiliano José Pérez"));
        EXPECT_EQ(d.Text1[0]->text(), QStringLiteral("Maximiliano Jos"));
        d.close(); // the title-bar button: nothing stored
    });
    EXPECT_EQ(Jugador1, "Ana");

    EnOponentes([](ui::DialogoOponentes &d) {
        Escribe(d, "Luis", "Eva");
        Clic(d.Command2);
    });
    EXPECT_EQ(Jugador1, "Primer jugador");
    EXPECT_EQ(Jugador2, "Segundo jugador");
}

TEST_F(Dialogos, OpponentsEnterRightAfterOpeningAndEnglishMessages)
{
    Arranca(true);
    EnOponentes([](ui::DialogoOponentes &d) {
        EXPECT_EQ(d.windowTitle(), "Opponents");
        EXPECT_EQ(d.label[0]->text(), "Name to &first player:");
        EXPECT_EQ(d.label[0]->buddy(), d.Text1[0]);
        const QString info = QStringLiteral("Information");
        d.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&d));
        EsperaMensaje([&d] { QTest::keyClick(&d, Qt::Key_Return); }, info,
                      "Please write the names");
        Escribe(d, "Ana", "Ana");
        EsperaMensaje([&d] { Clic(d.Command1); }, info, "Error: the opponents are same.");
        Clic(d.Command2);
    });
    EXPECT_EQ(Jugador1, "player one");
    EXPECT_EQ(Jugador2, "player two");
}

TEST_F(Dialogos, LevelTakesEffectOnTheClick)
{
    AzarGuionado azar({kPersonaAbre});
    Arranca(false);
    Juega({0});
    CuandoModal([](QWidget *w) {
        auto *d = dynamic_cast<ui::DialogoNivel *>(w);
        ASSERT_NE(d, nullptr);
        EXPECT_TRUE(d->optNivel.Opcion(2)->isChecked());
        EXPECT_EQ(d->optNivel.Opcion(1)->text(), "Medio");
        Clic(d->optNivel.Opcion(1));
        EXPECT_EQ(Nivel, 2);
        d->close(); // no OK
    });
    azar.Agrega({kPersonaAbre});
    Form1().mnuNivel->trigger();
    EXPECT_EQ(Nivel, 2);
    EXPECT_EQ(Titulo(), "El famoso juego del tirlo (Nivel 2)");
    EXPECT_EQ(Casillas(), "........."); // a new game

    // Opened again at level 2; changed to 1 with the keyboard, then OK.
    CuandoModal([](QWidget *w) {
        auto *d = dynamic_cast<ui::DialogoNivel *>(w);
        ASSERT_NE(d, nullptr);
        EXPECT_FALSE(d->optNivel.Opcion(0)->isChecked());
        EXPECT_TRUE(d->optNivel.Opcion(1)->isChecked());
        EXPECT_FALSE(d->optNivel.Opcion(2)->isChecked());
        ASSERT_TRUE(QTest::qWaitForWindowActive(d));
        d->optNivel.Opcion(1)->setFocus();
        QTest::keyClick(d->optNivel.Opcion(1), Qt::Key_Up);
        EXPECT_EQ(Nivel, 1);
        Clic(d->cmdok);
    });
    azar.Agrega({kPersonaAbre});
    Form1().mnuNivel->trigger();
    EXPECT_EQ(Titulo(), "El famoso juego del tirlo (Nivel 1)");
    EXPECT_EQ(azar.Excedidas(), 0);
}

TEST_F(Dialogos, AboutInTheLanguageLoaded)
{
    Arranca(false);
    const auto abre = [](const QString &titulo, const QString &boton) {
        CuandoModal([=](QWidget *w) {
            auto *d = dynamic_cast<ui::DialogoAcerca *>(w);
            ASSERT_NE(d, nullptr);
            EXPECT_EQ(d->windowTitle(), titulo);
            EXPECT_EQ(d->cmdAceptar->text(), boton);
            const QStringList lineas = d->Panel->text().split('\n');
            ASSERT_EQ(lineas.size(), 6);
            EXPECT_EQ(lineas[0], strTitulo);
            EXPECT_TRUE(lineas[1].isEmpty());
            EXPECT_EQ(d->Panel->alignment(), Qt::AlignLeft | Qt::AlignTop);
            Clic(d->cmdAceptar);
        });
        Form1().mnuacerca->trigger();
    };
    const std::string antes = Casillas();
    abre("Acerca...", "&Aceptar");
    EXPECT_EQ(Casillas(), antes);
    EXPECT_EQ(Estado(), "Tu turno");

    CuandoModal([](QWidget *w) {
        Clic(dynamic_cast<ui::VentanaIdioma *>(w)->optIngles);
        w->close();
    });
    Form1().mnuSeleccionIdioma->trigger();
    abre("About...", "&Ok");
}
