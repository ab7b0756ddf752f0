// Writes the installed icon theme files: the program's icon as PNG at the
// usual hicolor sizes, under the directory given.
#include "icono.h"

#include <QDir>

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s OUTPUT-DIR\n", argv[0]);
        return 2;
    }
    const QString raiz = QString::fromLocal8Bit(argv[1]);
    for (int lado : {16, 32, 48, 64, 128, 256}) {
        const QString dir = QStringLiteral("%1/%2x%2/apps").arg(raiz).arg(lado);
        if (!QDir().mkpath(dir) ||
            !DibujaIcono(lado).save(dir + QStringLiteral("/supertirlo.png"), "PNG")) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(dir));
            return 1;
        }
    }
    return 0;
}
