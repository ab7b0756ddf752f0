#include "icono.h"

#include <QFile>
#include <QPainter>
#include <QXmlStreamReader>

namespace {

constexpr int kRejilla = 32;

QImage DibujoBase()
{
    QImage imagen(kRejilla, kRejilla, QImage::Format_ARGB32);
    imagen.fill(Qt::transparent);
    QFile archivo(QStringLiteral(":/icons/supertirlo.svg"));
    if (!archivo.open(QIODevice::ReadOnly))
        return imagen;
    QPainter p(&imagen);
    QXmlStreamReader svg(&archivo);
    while (!svg.atEnd()) {
        if (svg.readNext() != QXmlStreamReader::StartElement || svg.name() != QLatin1String("rect"))
            continue;
        const QXmlStreamAttributes a = svg.attributes();
        p.fillRect(a.value(QLatin1String("x")).toInt(), a.value(QLatin1String("y")).toInt(),
                   a.value(QLatin1String("width")).toInt(),
                   a.value(QLatin1String("height")).toInt(),
                   QColor(a.value(QLatin1String("fill")).toString()));
    }
    return imagen;
}

} // namespace

QImage DibujaIcono(int lado)
{
    static const QImage base = DibujoBase();
    const int nitido = kRejilla * ((lado + kRejilla - 1) / kRejilla);
    const QImage grande =
        base.scaled(nitido, nitido, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    if (nitido == lado)
        return grande;
    return grande.scaled(lado, lado, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QIcon IconoPrograma()
{
    static const QIcon icono = [] {
        QIcon i;
        i.addPixmap(QPixmap::fromImage(DibujaIcono(32)));
        i.addPixmap(QPixmap::fromImage(DibujaIcono(64)));
        return i;
    }();
    return icono;
}
