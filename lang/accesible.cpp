#include "accesible.h"

#include "estado.h"

QString NombreCasilla(int boton, const QString &marca)
{
    const bool espanol = Idioma != kIngles;
    const QString contenido = !marca.isEmpty() ? marca
                              : espanol        ? QStringLiteral("vacía")
                                               : QStringLiteral("empty");
    return (espanol ? QStringLiteral("Casilla %1, fila %2, columna %3: %4")
                    : QStringLiteral("Square %1, row %2, column %3: %4"))
        .arg(boton + 1)
        .arg(boton / 3 + 1)
        .arg(boton % 3 + 1)
        .arg(contenido);
}

QString DescripcionCasilla()
{
    return Idioma != kIngles ? QStringLiteral("Pulse para jugar en esta casilla")
                             : QStringLiteral("Press to play on this square");
}
