// The program from start to exit, driven as a player drives it: every script
// of tests/datos/guiones.txt, in Spanish and in English; and every window as
// designed, as tests/datos/textos.txt lists them.
#include "apoyo_ui.h"

#include <cctype>
#include <cmath>

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

// Each window as built, with an icon.
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
        EXPECT_FALSE(w->windowIcon().isNull()) << clave; // the program's, in its title bar
    }
}

// Seeded once, from the time of day, after the first game's toss for who opens.
TEST_F(Programa, TheMainWindowSeedsTheSourceFromTheClockLast)
{
    AzarGuionado azar({0.75f});
    const double hora = QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
    Ejecuta({"start"}, false);
    ASSERT_EQ(azar.semillas.size(), 1u);
    EXPECT_LE(std::abs(std::remainder(azar.semillas[0].first - hora, 86400.0)), 2.0);
    EXPECT_EQ(azar.semillas[0].second, 1);
}
