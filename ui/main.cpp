#include "formularios.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    Main();
    return app.exec();
}
