#include "estrategias.h"

#include "azar.h"

#include <initializer_list>

namespace {

// Lists the empty cells among `celdas`, in that order, and draws one of them.
bool VaciaAlAzar(Integer &columna, Integer &fila, const Board &tablero,
                 std::initializer_list<Casilla> celdas)
{
    ListaCasillas lista{};
    Integer cuenta = 0;
    for (const Casilla &k : celdas)
        if (tablero(k.Columna, k.Fila) == kVacia)
            AgregaCasilla(lista, cuenta, k.Columna, k.Fila);
    if (cuenta == 0)
        return false;
    const Casilla &elegida = lista[AlAzar(cuenta)];
    columna = elegida.Columna;
    fila = elegida.Fila;
    return true;
}

} // namespace

bool EsquinaAlAzar(Integer &columna, Integer &fila, const Board &tablero)
{
    return VaciaAlAzar(columna, fila, tablero, {{0, 0}, {2, 0}, {0, 2}, {2, 2}});
}

bool LadoAlAzar(Integer &columna, Integer &fila, const Board &tablero)
{
    return VaciaAlAzar(columna, fila, tablero, {{1, 0}, {0, 1}, {2, 1}, {1, 2}});
}

bool CasillaAlAzar(Integer &columna, Integer &fila, const Board &tablero)
{
    return VaciaAlAzar(columna, fila, tablero,
                       {{0, 0}, {0, 1}, {0, 2}, {1, 0}, {1, 1}, {1, 2}, {2, 0}, {2, 1}, {2, 2}});
}
