#include "movimiento.h"

#include "estado.h"
#include "estrategias.h"

bool CentroLibre(const Board &tablero)
{
    return tablero(1, 1) == kVacia;
}

bool MovimientoPC(Board &tablero)
{
    Integer columna{}; // written by the strategy that answers
    Integer fila{};
    const auto juega = [&] {
        tablero(columna, fila) = kCero;
        return true;
    };

    if (JugadaGanadora(columna, fila, tablero))
        return juega();
    if (JugadaBloqueo(columna, fila, tablero))
        return juega();
    // The next four are evaluated at every level and their answer discarded
    // where the level does not admit it; BloqueaDoble may draw even then.
    if (BloqueaDoble(columna, fila, tablero) && Nivel == 3)
        return juega();
    if (JugadaDoble(columna, fila, tablero) && Nivel >= 2)
        return juega();
    if (CentroLibre(tablero) && Nivel >= 2) {
        tablero(1, 1) = kCero;
        return true;
    }
    if (JugadaAmenaza(columna, fila, tablero) && Nivel >= 2)
        return juega();
    if (Nivel < 2)
        return CasillaAlAzar(columna, fila, tablero) && juega();
    if (EsquinaAlAzar(columna, fila, tablero) || LadoAlAzar(columna, fila, tablero))
        return juega();
    return false;
}
