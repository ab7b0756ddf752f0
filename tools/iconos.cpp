// Draws the program's icon as PNG at the usual hicolor sizes, under the
// directory given: the icon theme files, and the windows' own icon. The
// picture (icons/supertirlo.svg) is pixel art on a 32x32 grid: rectangles
// only. Whole multiples of 32 stay crisp; other sizes are scaled smoothly
// from the nearest crisp one above.
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QXmlStreamReader>

#include <cstdio>

namespace {

constexpr int kRejilla = 32;

QImage Dibujo(QFile &svg)
{
    QImage imagen(kRejilla, kRejilla, QImage::Format_ARGB32);
    imagen.fill(Qt::transparent);
    QPainter p(&imagen);
    QXmlStreamReader lector(&svg);
    while (!lector.atEnd()) {
        if (lector.readNext() != QXmlStreamReader::StartElement ||
            lector.name() != QLatin1String("rect"))
            continue;
        const QXmlStreamAttributes a = lector.attributes();
        p.fillRect(a.value(QLatin1String("x")).toInt(), a.value(QLatin1String("y")).toInt(),
                   a.value(QLatin1String("width")).toInt(),
                   a.value(QLatin1String("height")).toInt(),
                   QColor(a.value(QLatin1String("fill")).toString()));
    }
    return imagen;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s ICON.svg OUTPUT-DIR\n", argv[0]);
        return 2;
    }
    QFile svg(QString::fromLocal8Bit(argv[1]));
    if (!svg.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", argv[1]);
        return 1;
    }
    const QImage base = Dibujo(svg);
    const QString raiz = QString::fromLocal8Bit(argv[2]);
    for (int lado : {16, 32, 48, 64, 128, 256}) {
        const int nitido = kRejilla * ((lado + kRejilla - 1) / kRejilla);
        QImage imagen = base.scaled(nitido, nitido, Qt::IgnoreAspectRatio, Qt::FastTransformation);
        if (nitido != lado)
            imagen = imagen.scaled(lado, lado, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const QString dir = QStringLiteral("%1/%2x%2/apps").arg(raiz).arg(lado);
        if (!QDir().mkpath(dir) || !imagen.save(dir + QStringLiteral("/supertirlo.png"), "PNG")) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(dir));
            return 1;
        }
    }
    return 0;
}
