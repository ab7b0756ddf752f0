// The game engine: worked boards for every strategy (tests/datos/jugadas.txt)
// and the exact odds of beating each level.
#include "analisis.h"
#include "apoyo.h"
#include "estado.h"
#include "estrategias.h"
#include "movimiento.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <sstream>

namespace {

using Estrategia = bool (*)(Integer &, Integer &, const Board &);
const std::map<std::string, Estrategia> kEstrategias = {
    {"JugadaGanadora", JugadaGanadora}, {"JugadaBloqueo", JugadaBloqueo},
    {"JugadaDoble", JugadaDoble},       {"BloqueaDoble", BloqueaDoble},
    {"JugadaAmenaza", JugadaAmenaza},   {"EsquinaAlAzar", EsquinaAlAzar},
    {"LadoAlAzar", LadoAlAzar},         {"CasillaAlAzar", CasillaAlAzar}};

// What one row of jugadas.txt asks for: a button, -1 for a decline (which
// must leave the column and row as they came), 1 or 0 for the board tests.
int Responde(const std::string &prueba, const Board &b)
{
    if (prueba == "HayGanador" || prueba == "TableroLleno")
        return prueba == "HayGanador" ? HayGanador(b) : TableroLleno(b);
    if (prueba.rfind("MovimientoPC@", 0) == 0) {
        Nivel = static_cast<Integer>(prueba[13] - '0');
        Board despues = b;
        MovimientoPC(despues);
        const auto k = std::mismatch(b.celda.begin(), b.celda.end(), despues.celda.begin()).first;
        return k == b.celda.end() ? -1 : int(k - b.celda.begin());
    }
    const bool busca = prueba.rfind("BuscaDoble@", 0) == 0;
    Integer c = busca ? Integer(prueba[11] - '0') : 7, r = busca ? Integer(prueba[13] - '0') : 5;
    const Integer c0 = c, r0 = r;
    if (busca ? BuscaDoble(c, r, b, Integer(prueba[15] - '0')) : kEstrategias.at(prueba)(c, r, b))
        return 3 * r + c;
    return c == c0 && r == r0 ? -1 : -3;
}

} // namespace

TEST(Jugadas, EveryWorkedBoard)
{
    const auto filas = Filas("jugadas.txt");
    for (const std::string &linea : filas) {
        std::istringstream campos(linea);
        std::string prueba, celdas, guion;
        int esperado = 0, sacadas = 0;
        campos >> prueba >> celdas >> guion >> esperado >> sacadas;
        std::replace(guion.begin(), guion.end(), ',', ' ');
        std::istringstream lista(guion == "-" ? "" : guion);
        AzarGuionado azar({std::istream_iterator<float>(lista), {}});
        EXPECT_EQ(Responde(prueba, DesdeTexto(celdas)), esperado) << linea;
        EXPECT_EQ(azar.sacadas, sacadas) << linea;
    }
    EXPECT_GT(filas.size(), 60u);
}

TEST(Analisis, ExactOddsOfBeatingEachLevel)
{
    std::map<int, Analisis> niveles;
    const auto filas = Filas("analisis.txt");
    for (const std::string &linea : filas) {
        std::istringstream campos(linea);
        int nivel = 0;
        std::string quien, celdas;
        double esperado = 0;
        campos >> nivel >> quien >> celdas >> esperado;
        Analisis &a = niveles.try_emplace(nivel, Integer(nivel)).first->second;
        const Board b = DesdeTexto(celdas);
        EXPECT_DOUBLE_EQ(quien == "pc" ? a.TrasJugada(b) : a.AlMover(b), esperado) << linea;
    }
    EXPECT_GT(filas.size(), 20u);
}

TEST(Azar, TheSeedDecidesEveryDrawAndEachIsInTheUnitInterval)
{
    const auto serie = [](float semilla) {
        Randomize(semilla);
        std::vector<float> s(200);
        for (float &x : s) {
            x = Azar().Rnd();
            EXPECT_TRUE(x >= 0.0f && x < 1.0f) << x;
        }
        return s;
    };
    EXPECT_EQ(serie(43200.0f), serie(43200.0f));
    EXPECT_NE(serie(43201.0f), serie(43200.0f));
}
