// Every window's texts, designed geometry, menu states and tab order, as
// tests/datos/textos.txt lists them: as designed, in Spanish and in English.
#include "apoyo_ui.h"

#include <QAccessible>
#include <QRadioButton>
#include <QTest>

#include <set>

namespace {

// What a screen reader says of the control with the focus, then of each one
// Tab reaches, once round.
QStringList Tabulador(QWidget *v, int pasos)
{
    v->show();
    v->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(v));
    QStringList t;
    for (int i = 0; i <= pasos; ++i) {
        QWidget *f = QApplication::focusWidget();
        t << QAccessible::queryAccessibleInterface(f)->text(QAccessible::Name);
        QTest::keyClick(f, Qt::Key_Tab);
    }
    return t;
}

void Compara(const char *clave, const char *modo, const QStringList &visto)
{
    EXPECT_EQ(visto, Datos(clave, modo)) << clave << ' ' << modo;
}

// As designed, with the program's icon drawn at 32x32 in its title bar.
void Disenada(const char *clave, QWidget *w)
{
    Compara(clave, "design", Textos(w, true));
    EXPECT_TRUE(w->windowIcon().availableSizes().contains(QSize(32, 32))) << clave;
    const QImage icono = w->windowIcon().pixmap(32).toImage();
    std::set<QRgb> colores;
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x)
            colores.insert(icono.pixel(x, y));
    EXPECT_GE(colores.size(), 4u) << clave; // drawn in its colours, not blank or flat
}

} // namespace

TEST_F(Programa, EveryWindowAsDesigned)
{
    Disenada("Form1", new ui::VentanaPrincipal);
    Disenada("frmNivel", new ui::DialogoNivel);
    Disenada("frmoponentes", new ui::DialogoOponentes);
    Disenada("frmAbout", new ui::DialogoAcerca);
    Disenada("frmSeleccion", new ui::VentanaIdioma);
}

TEST_F(Programa, TabOrders)
{
    AzarGuionado azar({kPersonaAbre});
    Arranca(false);
    EXPECT_EQ(Form1().focusWidget(), Form1().cmdtir[8]);
    for (int k : {0, 1, 3}) // a lost game: the new-game button takes its turn
        Clic(Form1().cmdtir[k]);
    Form1().cmdtir[8]->setFocus();
    Compara("Form1", "tab", Tabulador(&Form1(), 10));
    Compara("frmNivel", "tab", Tabulador(&frmNivel(), 2));
    Compara("frmoponentes", "tab", Tabulador(&frmoponentes(), 4));
    Compara("frmAbout", "tab", Tabulador(&frmAbout(), 1));
    Main();
    Compara("frmSeleccion", "tab", Tabulador(&frmSeleccion(), 3));
}

TEST_F(Programa, EveryWindowInTheLanguageChosen)
{
    for (const char *idioma : {"es", "en"}) {
        ReiniciaPrograma();
        AzarGuionado azar({kPersonaAbre});
        Main();
        if (idioma == std::string("en"))
            Clic(frmSeleccion().optIngles);
        Compara("frmSeleccion", idioma, Textos(&frmSeleccion(), false));
        Clic(frmSeleccion().cmdAceptar);
        Compara("Form1", idioma, Textos(&Form1(), false));
        Compara("frmNivel", idioma, Textos(&frmNivel(), false));
        Compara("frmoponentes", idioma, Textos(&frmoponentes(), false));
        Compara("frmAbout", idioma, Textos(&frmAbout(), false));
    }
}

TEST_F(Programa, TheMainWindowSeedsTheGeneratorFromTheClock)
{
    const float antes = SegundosDesdeMedianoche();
    Arranca(false);
    const float x = Azar().Rnd();
    const auto sembrado = [](float segundos) {
        GeneradorAzar g;
        g.Randomize(segundos);
        return g.Rnd();
    };
    EXPECT_TRUE(x == sembrado(antes) || x == sembrado(SegundosDesdeMedianoche())) << x;
}
