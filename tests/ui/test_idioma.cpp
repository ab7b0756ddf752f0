// The string tables and the captions they give the windows.
#include "apoyo_ui.h"
#include "estado.h"
#include "idioma.h"

#include <QLabel>
#include <QMenu>
#include <QRadioButton>

#include <gtest/gtest.h>

namespace {

class Idiomas : public ::testing::Test {
  protected:
    void SetUp() override { ReiniciaPrograma(); }
    void TearDown() override { ReiniciaPrograma(); }
};

void Carga(bool ingles)
{
    CargaTextos(ingles, [](const QString &, const QString &) {});
}

// Every caption the caption application sets, plus the two it leaves alone.
QStringList Rotulos()
{
    ui::VentanaPrincipal &f = Form1();
    ui::DialogoNivel &n = frmNivel();
    ui::DialogoOponentes &o = frmoponentes();
    return {f.windowTitle(),
            f.mnuOpciones->title(),
            n.optNivel.Opcion(0)->text(),
            n.optNivel.Opcion(1)->text(),
            n.optNivel.Opcion(2)->text(),
            n.cmdok->text(),
            n.windowTitle(),
            o.Command1->text(),
            o.Command2->text(),
            f.cmdnuevo->text(),
            f.mnuNivel->text(),
            f.mnuSeleccionIdioma->text(),
            f.mnuacerca->text(),
            f.mnuSalir->text(),
            o.windowTitle(),
            o.label[0]->text(),
            o.Label1->text(),
            f.mnuoponentes->text(),
            f.mnu1vs2->text(),
            f.mnuvspc->text()};
}

} // namespace

TEST_F(Idiomas, AboutTextHasSixLinesAndNeverGrows)
{
    for (bool ingles : {false, true}) {
        Carga(ingles);
        const QString primera = strAcercaTexto;
        Carga(ingles);
        EXPECT_EQ(strAcercaTexto, primera);
        const QStringList lineas = strAcercaTexto.split(QStringLiteral("\r\n"));
        ASSERT_EQ(lineas.size(), 6);
        EXPECT_EQ(lineas[0], strTitulo);
        EXPECT_TRUE(lineas[1].isEmpty());
        EXPECT_TRUE(lineas[2].startsWith(ingles ? "Program done by " : "Program hecho por "));
        EXPECT_TRUE(lineas[3].startsWith(ingles ? "Comments in web: " : "Comentarios en el web: "));
        EXPECT_TRUE(lineas[4].startsWith(ingles ? "Web page: " : QStringLiteral("Página web: ")));
        EXPECT_FALSE(lineas[5].isEmpty());
        EXPECT_EQ(strAcercaTexto.count('\n'), 5);
        EXPECT_EQ(strAcercaTexto.count('\r'), 5);
    }
}

TEST_F(Idiomas, CaptionsInSpanish)
{
    Arranca(false);
    EXPECT_TRUE(frmNivel.Existe()); // created hidden by the main window's load
    EXPECT_TRUE(frmoponentes.Existe());
    EXPECT_FALSE(frmNivel().isVisible());
    const QStringList esperado = {"El famoso juego del tirlo (Nivel 3)",
                                  "&Opciones",
                                  QStringLiteral("Fácil"),
                                  "Medio",
                                  "A que no ganas",
                                  "&Aceptar",
                                  "Nivel",
                                  "&Aceptar",
                                  "&Cancelar",
                                  "&Nuevo juego",
                                  "&Nivel",
                                  QStringLiteral("Se&lección de idioma"),
                                  "&Acerca...",
                                  "&Salir",
                                  "Oponentes",
                                  "Nombre del &primer jugador:",
                                  "Nombre del &segundo jugador:",
                                  "&Oponentes",
                                  "&1 vs 2",
                                  "&Vs PC"};
    EXPECT_EQ(Rotulos(), esperado);
    AplicaIdioma();
    EXPECT_EQ(Rotulos(), esperado);
}

TEST_F(Idiomas, CaptionsInEnglish)
{
    Arranca(true);
    const QStringList esperado = {"The tic tac toe (Level 3)",
                                  "&Options",
                                  "Easy",
                                  "Medium",
                                  "You can not win",
                                  "&Ok",
                                  "Level",
                                  "&Ok",
                                  "&Cancel",
                                  "&New game",
                                  "&Level",
                                  "&Idiom Selection",
                                  "&About...",
                                  "&Exit",
                                  "Opponents",
                                  "Name to &first player:",
                                  "Name to &second player:",
                                  "&Opponents",
                                  "&1 vs 2",
                                  "&Vs PC"};
    EXPECT_EQ(Rotulos(), esperado);
    EXPECT_EQ(Estado(), "Your turn");
}

TEST_F(Idiomas, TitleFollowsIdiomaForTheLevelWord)
{
    Arranca(true);
    Nivel = 1;
    AplicaIdioma();
    EXPECT_EQ(Titulo(), "The tic tac toe (Level 1)");
    Idioma = 1;
    AplicaIdioma();
    EXPECT_EQ(Titulo(), "The tic tac toe (Nivel 1)");
}

TEST_F(Idiomas, UnloadedDialogsComeBackFromTheirDesign)
{
    Arranca(false);
    frmNivel().Descarga();
    frmoponentes().Descarga();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(frmNivel.Existe());
    EXPECT_EQ(frmNivel().windowTitle(), "Nivel de juego");
    EXPECT_EQ(frmNivel().optNivel.Opcion(1)->text(), "2._ Regular.");
    EXPECT_TRUE(frmNivel().optNivel.Opcion(2)->isChecked());
    // The opponents dialog takes the loaded texts whenever it is created.
    EXPECT_EQ(frmoponentes().windowTitle(), "Oponentes");
    EXPECT_EQ(frmoponentes().Label1->text(), "Nombre del &segundo jugador:");
}
