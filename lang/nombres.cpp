#include "nombres.h"

#include <QTextBoundaryFinder>

namespace {

bool Aislante(QChar c)
{
    return c.unicode() >= 0x2066 && c.unicode() <= 0x2069;
}

// The characters of a text as a person counts them (grapheme clusters).
// Qt's finder can put a boundary between the two halves of a surrogate pair
// after some joiner sequences: those are not counted.
int Caracteres(const QString &texto)
{
    int n = 0;
    QTextBoundaryFinder limites(QTextBoundaryFinder::Grapheme, texto);
    for (qsizetype p; (p = limites.toNextBoundary()) != -1;)
        n += p == texto.size() || !texto[p].isLowSurrogate();
    return n;
}

// The first line, without control characters, direction isolates or half
// of a surrogate pair.
QString UnaLinea(const QString &texto)
{
    QString linea;
    for (qsizetype i = 0; i < texto.size(); ++i) {
        const QChar c = texto[i];
        if (c == u'\n' || c == u'\r' || c == u'\v' || c == u'\f' || c == QChar(0x85) ||
            c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            break;
        if (c.isHighSurrogate() && i + 1 < texto.size() && texto[i + 1].isLowSurrogate())
            linea += texto.mid(i++, 2);
        else if (!c.isSurrogate() && c.category() != QChar::Other_Control && !Aislante(c))
            linea += c;
    }
    return linea;
}

} // namespace

QString Trim(const QString &texto)
{
    qsizetype inicio = 0;
    qsizetype fin = texto.size();
    while (inicio < fin && texto[inicio] == u' ')
        ++inicio;
    while (fin > inicio && texto[fin - 1] == u' ')
        --fin;
    return texto.mid(inicio, fin - inicio);
}

QString Aislado(const QString &nombre)
{
    return nombre.isEmpty() ? nombre : QChar(0x2068) + nombre + QChar(0x2069);
}

QValidator::State ValidadorNombre::validate(QString &texto, int &cursor) const
{
    const QString linea = UnaLinea(texto);
    if (Caracteres(linea) > kLargoNombre)
        return Invalid;
    cursor = int(std::min(UnaLinea(texto.left(cursor)).size(), linea.size()));
    texto = linea;
    return Acceptable;
}
