// The program from start to exit, driven as a player drives it: every script
// of tests/datos/guiones.txt, in Spanish and in English.
#include "apoyo_ui.h"

#include <fstream>

TEST_F(Programa, EveryScriptInBothLanguages)
{
    std::ifstream archivo(TIRLO_DATOS "/guiones.txt");
    std::vector<std::pair<std::string, QStringList>> guiones;
    for (std::string linea; std::getline(archivo, linea);)
        if (linea.rfind("== ", 0) == 0)
            guiones.push_back({linea.substr(3), {}});
        else if (!guiones.empty())
            guiones.back().second << QString::fromStdString(linea);
    ASSERT_GE(guiones.size(), 6u);
    for (const auto &[titulo, lineas] : guiones)
        for (bool ingles : {false, true}) {
            SCOPED_TRACE(titulo + (ingles ? " (en)" : " (es)"));
            ReiniciaPrograma();
            Ejecuta(lineas, ingles);
        }
}
