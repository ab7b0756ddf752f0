#include "escritorio.h"
#include "formularios.h"
#include "modalidad.h"

#include <QApplication>

int main(int, char *argv[])
{
    // The game takes no arguments: not even the toolkit's own options are read.
    int argc = 1;
    char *soloPrograma[] = {argv[0], nullptr};
    if (!EligeSistemaDeVentanas())
        return 1;
    QApplication app(argc, soloPrograma);
    ProtegeModalidad();
    IdentificaPrograma();
    Main();
    return app.exec();
}
