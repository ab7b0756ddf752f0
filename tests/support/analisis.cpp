#include "analisis.h"

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
        tamanos.push_back(n);
        return tamanos.size() <= guion.size() ? guion[tamanos.size() - 1] : 0;
    }
};

void Ramifica(const Board &inicio, AzarRamas &azar, double prob, std::vector<Respuesta> &salida)
{
    azar.tamanos.clear();
    Board b = inicio;
    MovimientoPC(b);
    const std::size_t hechas = azar.guion.size();
    if (azar.tamanos.size() <= hechas) {
        for (Respuesta &r : salida)
            if (r.tablero == b) {
                r.probabilidad += prob;
                return;
            }
        salida.push_back({b, prob});
        return;
    }
    const Integer n = azar.tamanos[hechas];
    for (Integer k = 0; k < n; ++k) {
        azar.guion.push_back(k);
        Ramifica(inicio, azar, prob / n, salida);
        azar.guion.pop_back();
    }
}

int Clave(const Board &b)
{
    int clave = 0;
    for (Integer v : b.celda)
        clave = clave * 3 + v;
    return clave;
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

double Analisis::AlMover(const Board &tablero)
{
    double &memo = memo_[Clave(tablero)];
    if (memo < 0.0) {
        memo = 0.0;
        for (std::size_t k = 0; k < 9; ++k)
            if (tablero.celda[k] == kVacia) {
                Board b = tablero;
                b.celda[k] = kEquis;
                memo = std::max(memo, TrasJugada(b));
            }
    }
    return memo;
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
