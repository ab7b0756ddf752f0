// The floor for the start-up benchmark: the smallest Qt Widgets program of the
// game's shape, a main window with a menu, nine buttons and a label.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QMainWindow ventana;
    QMenu *menu = ventana.menuBar()->addMenu(QStringLiteral("&Options"));
    for (const char *item : {"&1 vs 2", "&Vs PC", "&Level", "&Exit"})
        menu->addAction(QString::fromLatin1(item));
    auto *centro = new QWidget;
    ventana.setCentralWidget(centro);
    centro->setFixedSize(319, 325);
    auto *etiqueta = new QLabel(QStringLiteral("Your turn"), centro);
    etiqueta->setGeometry(38, 6, 239, 39);
    for (int k = 0; k < 9; ++k)
        (new QPushButton(centro))->setGeometry(41 + 80 * (k % 3), 58 + 72 * (k / 3), 63, 55);
    ventana.show();
    return app.exec();
}
