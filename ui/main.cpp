#include "escritorio.h"
#include "formularios.h"
#include "modalidad.h"

#include <QApplication>

int main(int, char *argv[])
{
    // The game takes no arguments: not even the toolkit's own options are read.
    int argc = 1;
    char *soloPrograma[] = {argv[0], nullptr};
    EligeSistemaDeVentanas();
    QApplication app(argc, soloPrograma);
    ProtegeModalidad();
    IdentificaPrograma();
    Main();
    return app.exec();
}
