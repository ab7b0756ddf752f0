#include "analisis.h"
#include "apoyo.h"
#include "estado.h"
#include "movimiento.h"

#include <gtest/gtest.h>

#include <set>

namespace {

// The button where MovimientoPC put its mark, or -1.
int Jugada(Integer nivel, const char *celdas)
{
    Nivel = nivel;
    Board b = DesdeTexto(celdas);
    const Board antes = b;
    if (!MovimientoPC(b))
        return -1;
    for (int k = 0; k < 9; ++k)
        if (b.celda[static_cast<std::size_t>(k)] != antes.celda[static_cast<std::size_t>(k)])
            return k;
    return -2;
}

Board Con(Board b, int boton, Integer marca)
{
    b.celda[static_cast<std::size_t>(boton)] = marca;
    return b;
}

// Plays a line against one level: the person's buttons, and the computer's
// answers, which must be certain.
void SigueLinea(Integer nivel, Board b, const std::vector<int> &persona, const std::vector<int> &pc)
{
    Nivel = nivel;
    for (std::size_t i = 0; i < pc.size(); ++i) {
        if (i < persona.size())
            b = Con(b, persona[i], kEquis);
        const auto respuestas = RespuestasPC(b);
        ASSERT_EQ(respuestas.size(), 1u) << "after " << ComoTexto(b);
        b = Con(b, pc[i], kCero);
        ASSERT_EQ(respuestas[0].tablero, b) << "move " << i;
        ASSERT_FALSE(HayGanador(b));
    }
    for (std::size_t i = pc.size(); i < persona.size(); ++i)
        b = Con(b, persona[i], kEquis);
    EXPECT_TRUE(HayGanador(b)) << ComoTexto(b);
}

} // namespace

TEST(MovimientoPC, OpeningsAndPriorities)
{
    AzarGuionado azar({kCasiUno, 1.5f / 9.0f});
    EXPECT_EQ(Jugada(3, "........."), 4);
    EXPECT_EQ(Jugada(2, "........."), 4);
    EXPECT_EQ(azar.Sacadas(), 0);
    EXPECT_EQ(Jugada(1, "........."), 8);
    EXPECT_EQ(Jugada(1, "........."), 3);
    // Its own line before the person's.
    for (Integer nivel : {1, 2, 3})
        EXPECT_EQ(Jugada(nivel, "00."
                                "XX."
                                "..X"),
                  2);
    EXPECT_EQ(azar.Sacadas(), 2);

    Nivel = 3;
    Board lleno = DesdeTexto("X0X"
                             "0X0"
                             "0X0");
    const Board antes = lleno;
    EXPECT_FALSE(MovimientoPC(lleno));
    EXPECT_EQ(lleno, antes);
}

TEST(MovimientoPC, DiscardedForkDefenceStillDraws)
{
    // Two fork cells of the person's and four forcing moves.
    const char *pos = "0.."
                      ".X."
                      "..X";
    {
        // Level 1: one draw for the ignored defence, one for the random cell
        // (empty cells in column order: 3, 6, 1, 7, 2, 5).
        AzarGuionado azar({kCasiUno, 0.0f});
        EXPECT_EQ(Jugada(1, pos), 3);
        EXPECT_EQ(azar.Sacadas(), 2);
    }
    {
        // Level 2: the draw is made and ignored; the threat aims at 3 from 6.
        AzarGuionado azar({0.0f});
        EXPECT_EQ(Jugada(2, pos), 6);
        EXPECT_EQ(azar.Sacadas(), 1);
    }
    {
        AzarGuionado azar({0.0f});
        EXPECT_EQ(Jugada(3, pos), 1);
        EXPECT_EQ(azar.Sacadas(), 1);
    }
    // Level 0 plays as level 1 and level 4 as level 2.
    {
        AzarGuionado azar({kCasiUno, 0.0f});
        EXPECT_EQ(Jugada(0, pos), 3);
        EXPECT_EQ(azar.Sacadas(), 2);
    }
    {
        AzarGuionado azar({0.0f});
        EXPECT_EQ(Jugada(4, pos), 6);
        EXPECT_EQ(azar.Sacadas(), 1);
    }
}

TEST(MovimientoPC, EveryReachablePositionGetsExactlyOneMark)
{
    for (Integer nivel : {1, 2, 3})
        for (Abre quien : {Abre::Persona, Abre::Computadora}) {
            const std::vector<Board> posiciones = PosicionesPC(nivel, quien);
            EXPECT_GT(posiciones.size(), 30u);
            Nivel = nivel;
            for (const Board &b : posiciones) {
                for (const Respuesta &r : RespuestasPC(b)) {
                    ASSERT_TRUE(r.movio) << ComoTexto(b);
                    int cambios = 0;
                    for (std::size_t k = 0; k < 9; ++k)
                        if (r.tablero.celda[k] != b.celda[k]) {
                            ++cambios;
                            ASSERT_EQ(b.celda[k], kVacia);
                            ASSERT_EQ(r.tablero.celda[k], kCero);
                        }
                    ASSERT_EQ(cambios, 1) << ComoTexto(b);
                }
            }
        }
}

TEST(Analisis, LevelThreeLosesOnlyToTheCentreOpeningAndHalfTheTime)
{
    Analisis a(3);
    EXPECT_DOUBLE_EQ(a.HumanoPrimero(), 0.5);
    for (int k = 0; k < 9; ++k)
        EXPECT_DOUBLE_EQ(a.TrasJugada(Con(Board{}, k, kEquis)), k == 4 ? 0.5 : 0.0) << k;
    EXPECT_DOUBLE_EQ(a.PCPrimero(), 0.0);

    // The centre opening: each corner a quarter; after 0 and the person's 8,
    // the forcing moves 1, 2, 3 and 6 a quarter each.
    Nivel = 3;
    std::set<int> esquinas;
    for (const Respuesta &r : RespuestasPC(DesdeTexto("...."
                                                      "X...."))) {
        EXPECT_DOUBLE_EQ(r.probabilidad, 0.25);
        for (int k : {0, 2, 6, 8})
            if (r.tablero.celda[static_cast<std::size_t>(k)] == kCero)
                esquinas.insert(k);
    }
    EXPECT_EQ(esquinas, (std::set<int>{0, 2, 6, 8}));
    const Board tras8 = DesdeTexto("0..."
                                   "X..."
                                   "X");
    std::set<int> forzadas;
    for (const Respuesta &r : RespuestasPC(tras8)) {
        EXPECT_DOUBLE_EQ(r.probabilidad, 0.25);
        EXPECT_EQ(r.sacadas, 1);
        for (int k = 0; k < 9; ++k)
            if (r.tablero.celda[static_cast<std::size_t>(k)] !=
                tras8.celda[static_cast<std::size_t>(k)])
                forzadas.insert(k);
    }
    EXPECT_EQ(forzadas, (std::set<int>{1, 2, 3, 6}));
    EXPECT_DOUBLE_EQ(a.AlMover(Con(tras8, 1, kCero)), 1.0);
    EXPECT_DOUBLE_EQ(a.AlMover(Con(tras8, 3, kCero)), 1.0);
    EXPECT_DOUBLE_EQ(a.AlMover(Con(tras8, 2, kCero)), 0.0);
    EXPECT_DOUBLE_EQ(a.AlMover(Con(tras8, 6, kCero)), 0.0);
}

TEST(Analisis, LevelTwoByOpening)
{
    Analisis a(2);
    const double esperado[9] = {0, 1, 1, 1, 0.75, 0, 1, 0, 1};
    for (int k = 0; k < 9; ++k)
        EXPECT_DOUBLE_EQ(a.TrasJugada(Con(Board{}, k, kEquis)), esperado[k]) << k;
    EXPECT_DOUBLE_EQ(a.HumanoPrimero(), 1.0);

    // The person opens on 3, the threat aims at 0, the block takes 6.
    SigueLinea(2, Board{}, {3, 1, 0, 2}, {4, 8, 6});
    // The computer opens in the centre; the person answers 8, 3, 6, 7.
    SigueLinea(2,
               DesdeTexto("...."
                          "0...."),
               {8, 3, 6, 7}, {5, 2, 0});
}

TEST(Analisis, LevelOneIsBeatableButNotAlways)
{
    Analisis a(1);
    EXPECT_GT(a.HumanoPrimero(), 0.5);
    EXPECT_LT(a.HumanoPrimero(), 1.0);
    EXPECT_GT(a.PCPrimero(), 0.0);
    EXPECT_LT(a.PCPrimero(), a.HumanoPrimero());

    // Level 1 on an empty board: each cell a ninth.
    Nivel = 1;
    const auto respuestas = RespuestasPC(Board{});
    ASSERT_EQ(respuestas.size(), 9u);
    for (const Respuesta &r : respuestas)
        EXPECT_DOUBLE_EQ(r.probabilidad, 1.0 / 9.0);
}
