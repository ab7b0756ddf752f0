#include "analisis.h"

#include "apoyo.h"
#include "azar.h"
#include "estado.h"
#include "movimiento.h"

#include <algorithm>

namespace {

// Replays a prefix of choices and records the size of every choice asked for.
class AzarRamas final : public FuenteAzar {
  public:
    std::vector<Integer> guion;
    std::vector<Integer> tamanos;
    float Rnd() override { return 0.0f; }
    Integer Elige(Integer n) override
    {
        const std::size_t i = tamanos.size();
        tamanos.push_back(n);
        return i < guion.size() ? guion[i] : 0;
    }
};

void Ramifica(const Board &inicio, AzarRamas &azar, double prob, std::vector<Respuesta> &salida)
{
    azar.tamanos.clear();
    Board b = inicio;
    const bool movio = MovimientoPC(b);
    const std::size_t hechas = azar.guion.size();
    if (azar.tamanos.size() <= hechas) {
        for (Respuesta &r : salida)
            if (r.tablero == b) {
                r.probabilidad += prob;
                return;
            }
        salida.push_back({b, prob, static_cast<int>(hechas), movio});
        return;
    }
    const Integer n = azar.tamanos[hechas];
    for (Integer k = 0; k < n; ++k) {
        azar.guion.push_back(k);
        Ramifica(inicio, azar, prob / n, salida);
        azar.guion.pop_back();
    }
}

} // namespace

std::vector<Respuesta> RespuestasPC(const Board &tablero)
{
    AzarRamas azar;
    UsaFuenteAzar(&azar);
    std::vector<Respuesta> salida;
    Ramifica(tablero, azar, 1.0, salida);
    UsaFuenteAzar(nullptr);
    return salida;
}

std::vector<Board> PosicionesPC(Integer nivel, Abre quien)
{
    std::vector<Board> pendientes;
    if (quien != Abre::Persona)
        pendientes.push_back(Board{});
    if (quien != Abre::Computadora)
        for (std::size_t k = 0; k < 9; ++k) {
            Board b;
            b.celda[k] = kEquis;
            pendientes.push_back(b);
        }
    std::vector<Board> salida;
    std::vector<bool> vista(19683, false);
    Nivel = nivel;
    while (!pendientes.empty()) {
        const Board b = pendientes.back();
        pendientes.pop_back();
        const auto clave = static_cast<std::size_t>(Clave(b));
        if (HayGanador(b) || TableroLleno(b) || vista[clave])
            continue;
        vista[clave] = true;
        salida.push_back(b);
        for (const Respuesta &r : RespuestasPC(b))
            if (!HayGanador(r.tablero) && !TableroLleno(r.tablero))
                for (std::size_t k = 0; k < 9; ++k)
                    if (r.tablero.celda[k] == kVacia) {
                        Board siguiente = r.tablero;
                        siguiente.celda[k] = kEquis;
                        pendientes.push_back(siguiente);
                    }
    }
    return salida;
}

Analisis::Analisis(Integer nivel) : nivel_(nivel), memo_(19683, -1.0) {}

double Analisis::AlMover(const Board &tablero)
{
    double &memo = memo_[static_cast<std::size_t>(Clave(tablero))];
    if (memo >= 0.0)
        return memo;
    double mejor = 0.0;
    for (std::size_t k = 0; k < 9; ++k)
        if (tablero.celda[k] == kVacia) {
            Board b = tablero;
            b.celda[k] = kEquis;
            mejor = std::max(mejor, TrasJugada(b));
        }
    return memo = mejor;
}

double Analisis::TrasJugada(const Board &tablero)
{
    if (HayGanador(tablero))
        return 1.0;
    if (TableroLleno(tablero))
        return 0.0;
    Nivel = nivel_;
    double valor = 0.0;
    for (const Respuesta &r : RespuestasPC(tablero))
        if (!HayGanador(r.tablero) && !TableroLleno(r.tablero))
            valor += r.probabilidad * AlMover(r.tablero);
    return valor;
}

double Analisis::PCPrimero()
{
    Nivel = nivel_;
    double valor = 0.0;
    for (const Respuesta &r : RespuestasPC(Board{}))
        valor += r.probabilidad * AlMover(r.tablero);
    return valor;
}
