#include "apoyo.h"

#include "estado.h"

Board DesdeTexto(const std::string &celdas)
{
    Board b;
    for (std::size_t k = 0; k < 9 && k < celdas.size(); ++k)
        b.celda[k] = celdas[k] == 'X' ? kEquis : celdas[k] == '0' ? kCero : kVacia;
    return b;
}

std::string ComoTexto(const Board &b)
{
    std::string s;
    for (Integer v : b.celda)
        s += v == kEquis ? 'X' : v == kCero ? '0' : '.';
    return s;
}

int Clave(const Board &b)
{
    int clave = 0;
    for (Integer v : b.celda)
        clave = clave * 3 + v;
    return clave;
}

AzarGuionado::AzarGuionado(std::vector<float> valores) : valores_(std::move(valores))
{
    UsaFuenteAzar(this);
}

AzarGuionado::~AzarGuionado()
{
    UsaFuenteAzar(nullptr);
}

float AzarGuionado::Rnd()
{
    ++sacadas_;
    if (siguiente_ < valores_.size())
        return valores_[siguiente_++];
    ++excedidas_;
    return 0.0f;
}

void AzarGuionado::Agrega(std::vector<float> valores)
{
    valores_.insert(valores_.end(), valores.begin(), valores.end());
}

void BorraEstado()
{
    LimpiaTablero(Tablero);
    Jugando = false;
    Nivel = 0;
    Modo = 0;
    Turno = 0;
    Jugador1.clear();
    Jugador2.clear();
    Idioma = 0;
    DesdeMenu = false;
}
