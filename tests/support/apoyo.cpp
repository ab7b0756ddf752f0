#include "apoyo.h"

#include <fstream>

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

float AzarGuionado::Rnd()
{
    if (std::size_t(sacadas++) < valores.size())
        return valores[std::size_t(sacadas - 1)];
    ++excedidas;
    return 0.0f;
}

std::vector<std::string> Filas(const std::string &archivo)
{
    std::ifstream entrada(TIRLO_DATOS "/" + archivo);
    std::vector<std::string> filas;
    for (std::string linea; std::getline(entrada, linea);)
        if (!linea.empty() && linea[0] != '#')
            filas.push_back(linea);
    return filas;
}
