// The program from start to exit, driven as a player drives it: every script
// of tests/datos/guiones.txt, in Spanish and in English; and every window as
// designed, as tests/datos/textos.txt lists them.
#include "apoyo_ui.h"

#include <cctype>

struct Guion {
    std::string titulo;
    QStringList lineas;
    bool ingles;
};

// Every script of guiones.txt, once in each language.
std::vector<Guion> LeeGuiones()
{
    std::vector<Guion> guiones;
    for (const std::string &linea : Filas("guiones.txt"))
        if (linea.rfind("== ", 0) == 0)
            for (bool ingles : {false, true})
                guiones.push_back({linea.substr(3), {}, ingles});
        else
            for (auto g = guiones.end() - 2; g != guiones.end(); ++g)
                g->lineas << QString::fromStdString(linea);
    return guiones;
}

// CTest lists a script by its title and language.
void PrintTo(const Guion &g, std::ostream *os)
{
    *os << (g.ingles ? "en: " : "es: ") << g.titulo;
}

class Guiones : public Programa, public ::testing::WithParamInterface<Guion> {};

TEST_P(Guiones, PlayAsWritten)
{
    Ejecuta(GetParam().lineas, GetParam().ingles);
}

// Named after the script's title and its language.
INSTANTIATE_TEST_SUITE_P(Programa, Guiones, ::testing::ValuesIn(LeeGuiones()),
                         [](const ::testing::TestParamInfo<Guion> &g) {
                             std::string nombre;
                             for (char c : g.param.titulo)
                                 nombre += std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
                             return nombre + (g.param.ingles ? "_en" : "_es");
                         });

// Each window as built, with the program's icon for its title bar at 1x and 2x.
TEST_F(Programa, EveryWindowAsDesigned)
{
    const std::pair<const char *, QWidget *> ventanas[] = {
        {"Form1", new ui::VentanaPrincipal},
        {"frmNivel", new ui::DialogoNivel},
        {"frmoponentes", new ui::DialogoOponentes},
        {"frmAbout", new ui::DialogoAcerca},
        {"frmSeleccion", new ui::VentanaIdioma}};
    for (auto [clave, w] : ventanas) {
        EXPECT_EQ(Textos(w, true), Datos(clave, "design")) << clave;
        EXPECT_EQ(w->windowIcon().availableSizes(), QList<QSize>({{32, 32}, {64, 64}})) << clave;
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
