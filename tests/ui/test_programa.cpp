// The program from start to exit, driven as a player drives it: every script
// of tests/datos/guiones.txt, in Spanish and in English; and every window as
// designed, as tests/datos/textos.txt lists them.
#include "apoyo_ui.h"

#include <set>

TEST_F(Programa, EveryScriptInBothLanguages)
{
    std::vector<std::pair<std::string, QStringList>> guiones;
    for (const std::string &linea : Filas("guiones.txt"))
        if (linea.rfind("== ", 0) == 0)
            guiones.push_back({linea.substr(3), {}});
        else
            guiones.back().second << QString::fromStdString(linea);
    ASSERT_GE(guiones.size(), 6u);
    for (const auto &[titulo, lineas] : guiones)
        for (bool ingles : {false, true}) {
            SCOPED_TRACE(titulo + (ingles ? " (en)" : " (es)"));
            ReiniciaPrograma();
            Ejecuta(lineas, ingles);
        }
}

template <class T> std::tuple<const char *, QWidget *, QWidget *> Dos(const char *clave)
{
    return {clave, new T, new T};
}

QList<qint64> ClavesBotones(QWidget *w)
{
    QList<qint64> claves;
    for (auto *b : w->findChildren<QPushButton *>())
        claves << b->palette().cacheKey();
    return claves;
}

// Each window as built, with the program's icon drawn at 32x32 in its title
// bar. The style keeps its drawings under the palette they were drawn with:
// a window made again draws its buttons from there, and adds none.
TEST_F(Programa, EveryWindowAsDesigned)
{
    const std::tuple<const char *, QWidget *, QWidget *> ventanas[] = {
        Dos<ui::VentanaPrincipal>("Form1"), Dos<ui::DialogoNivel>("frmNivel"),
        Dos<ui::DialogoOponentes>("frmoponentes"), Dos<ui::DialogoAcerca>("frmAbout"),
        Dos<ui::VentanaIdioma>("frmSeleccion")};
    for (auto [clave, w, otra] : ventanas) {
        EXPECT_EQ(ClavesBotones(w), ClavesBotones(otra)) << clave;
        EXPECT_EQ(Textos(w, true), Datos(clave, "design")) << clave;
        EXPECT_TRUE(w->windowIcon().availableSizes().contains(QSize(32, 32))) << clave;
        // Drawn in its colours, not blank or flat.
        const QImage icono =
            w->windowIcon().pixmap(32).toImage().convertToFormat(QImage::Format_ARGB32);
        const auto *p = reinterpret_cast<const QRgb *>(icono.constBits());
        EXPECT_GE(std::set<QRgb>(p, p + icono.width() * icono.height()).size(), 4u) << clave;
    }
}

TEST_F(Programa, TheMainWindowSeedsTheGeneratorFromTheClock)
{
    const float antes = SegundosDesdeMedianoche(); // the local time of day
    EXPECT_NEAR(antes, QTime::currentTime().msecsSinceStartOfDay() / 1000, 2);
    Ejecuta({"start"}, false);
    const float x = Azar().Rnd();
    const auto sembrado = [](float segundos) {
        GeneradorAzar g;
        g.Randomize(segundos);
        return g.Rnd();
    };
    EXPECT_TRUE(x == sembrado(antes) || x == sembrado(SegundosDesdeMedianoche())) << x;
}
