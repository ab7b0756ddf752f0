// Draws the program's icon as PNG at the usual hicolor sizes, under the
// directory given: the icon theme files, and the windows' own icon; and, when
// a file is named, a Windows icon with the sizes Windows asks for. The
// picture (icons/supertirlo.svg) is pixel art on a 32x32 grid: rectangles
// only. Whole multiples of 32 stay crisp; other sizes are scaled smoothly
// from the nearest crisp one above.
#include <QBuffer>
#include <QDataStream>
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

QImage Escalada(const QImage &base, int lado)
{
    const int nitido = kRejilla * ((lado + kRejilla - 1) / kRejilla);
    QImage imagen = base.scaled(nitido, nitido, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    if (nitido != lado)
        imagen = imagen.scaled(lado, lado, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return imagen;
}

// An .ico file whose images are PNG, as Windows reads them since Vista: the
// directory (a 6-byte header, 16 bytes an image), then each PNG.
bool EscribeIco(const QImage &base, const QString &ruta)
{
    const QList<int> lados = {16, 24, 32, 48, 256};
    QList<QByteArray> pngs;
    for (int lado : lados) {
        QBuffer png;
        png.open(QIODevice::WriteOnly);
        Escalada(base, lado).save(&png, "PNG");
        pngs << png.data();
    }
    QFile ico(ruta);
    if (!ico.open(QIODevice::WriteOnly))
        return false;
    QDataStream d(&ico);
    d.setByteOrder(QDataStream::LittleEndian);
    d << quint16(0) << quint16(1) << quint16(lados.size());
    quint32 posicion = 6 + 16 * lados.size();
    for (int i = 0; i < lados.size(); ++i) {
        // Width and height 0 stand for 256; no palette; one plane of 32 bits.
        d << quint8(lados[i] % 256) << quint8(lados[i] % 256) << quint8(0) << quint8(0)
          << quint16(1) << quint16(32) << quint32(pngs[i].size()) << posicion;
        posicion += pngs[i].size();
    }
    for (const QByteArray &png : pngs)
        d.writeRawData(png.constData(), png.size());
    return d.status() == QDataStream::Ok;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3 && argc != 4) {
        std::fprintf(stderr, "usage: %s ICON.svg OUTPUT-DIR [WINDOWS-ICON.ico]\n", argv[0]);
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
        const QString dir = QStringLiteral("%1/%2x%2/apps").arg(raiz).arg(lado);
        if (!QDir().mkpath(dir) ||
            !Escalada(base, lado).save(dir + QStringLiteral("/supertirlo.png"), "PNG")) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(dir));
            return 1;
        }
    }
    if (argc == 4 && !EscribeIco(base, QString::fromLocal8Bit(argv[3]))) {
        std::fprintf(stderr, "cannot write %s\n", argv[3]);
        return 1;
    }
    return 0;
}
