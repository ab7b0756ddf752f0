// What a window keeps once closed: each of the game's windows opened and
// closed many times in the real program, offscreen, and the resident memory's
// growth per opening, beside the floor: a plain Qt dialog of the same shape
// (three options and a button), made, shown modal, closed and deleted, and
// for the message box, Qt's own. Without
// and then with accessibility active, with a client that reads every event's
// object and the whole tree while each window is open, as a screen reader does.
//   memoria [OPENINGS]
#include "formularios.h"

#include <QAccessible>
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QWindow>

#include <cstdio>
#include <functional>

namespace {

long RssKb()
{
    QFile estado(QStringLiteral("/proc/self/status"));
    if (!estado.open(QIODevice::ReadOnly))
        qFatal("cannot read /proc/self/status");
    for (QByteArray linea; !(linea = estado.readLine()).isEmpty();)
        if (linea.startsWith("VmRSS:"))
            return linea.mid(6).trimmed().split(' ').first().toLong();
    return 0;
}

// What a screen reader reads of an object and everything under it.
void Lee(QAccessibleInterface *i, int profundidad = 0)
{
    if (!i || !i->isValid() || profundidad > 20)
        return;
    (void)i->text(QAccessible::Name);
    (void)i->text(QAccessible::Description);
    (void)i->role();
    (void)i->state();
    (void)i->parent();
    for (int n = 0; n < i->childCount(); ++n)
        Lee(i->child(n), profundidad + 1);
}

// Closes the window in front through its title-bar button once it has been
// drawn on screen (read first, with accessibility active).
void CierraDibujada()
{
    QWidget *delante = QApplication::activeModalWidget();
    if (!delante->windowHandle()->isExposed()) {
        QTimer::singleShot(1, CierraDibujada);
        return;
    }
    delante->repaint();
    if (QAccessible::isActive())
        Lee(QAccessible::queryAccessibleInterface(qApp));
    delante->close();
}

// Opens the window, which returns once it has closed; it goes once the event
// loop is back, as in the game.
void AbreYCierra(const std::function<void()> &abre)
{
    QTimer::singleShot(0, CierraDibujada);
    abre();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void Suelo()
{
    QDialog dialogo;
    for (const char *texto : {"&1", "&2", "&3"})
        new QRadioButton(QString::fromLatin1(texto), &dialogo);
    new QPushButton(QStringLiteral("&OK"), &dialogo);
    dialogo.exec();
}

// Growth per opening in kB, after a warm-up.
double Crece(const std::function<void()> &abre, int veces)
{
    for (int n = 0; n < 10; ++n)
        AbreYCierra(abre);
    const long antes = RssKb();
    for (int n = 0; n < veces; ++n)
        AbreYCierra(abre);
    return double(RssKb() - antes) / veces;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int veces = argc > 1 ? std::atoi(argv[1]) : 1000;
    Main();
    frmSeleccion().cmdAceptar->click();
    ui::VentanaPrincipal &f = Form1();
    const std::pair<const char *, std::function<void()>> ventanas[] = {
        {"plain Qt dialog", Suelo},
        {"level", [&f] { f.mnuNivel_Click(); }},
        {"opponents", [&f] { f.mnuoponentes_Click(); }},
        {"about", [&f] { f.mnuacerca_Click(); }},
        {"language", [&f] { f.mnuSeleccionIdioma_Click(); }},
        // Qt's own message box keeps some memory at each opening on X11 (its
        // icon drawn anew): the floor for the game's.
        {"plain Qt message box",
         [&f] { QMessageBox::information(&f, QStringLiteral("t"), QStringLiteral("x")); }},
        {"message box", [&f] { MsgBoxInformacion(&f, QStringLiteral("t"), QStringLiteral("x")); }},
    };
    for (const bool accesible : {false, true}) {
        if (accesible) {
            QAccessible::setActive(true);
            // Every event's object read, as a screen reader's listener does.
            QAccessible::installUpdateHandler([](QAccessibleEvent *e) {
                if (QAccessibleInterface *i = e->accessibleInterface())
                    (void)i->text(QAccessible::Name);
            });
        }
        std::printf("%s accessibility, %d openings each: memory kept per opening\n",
                    accesible ? "with" : "without", veces);
        double suelo = 0;
        for (const auto &[nombre, abre] : ventanas) {
            const double kb = Crece(abre, veces);
            if (QByteArray(nombre).startsWith("plain"))
                suelo = kb;
            std::printf("  %-24s %6.2f kB", nombre, kb);
            if (suelo > 0)
                std::printf("  %5.2fx the floor", kb / suelo);
            std::printf("\n");
        }
    }
    std::printf("target: under 1 kB an opening, within 1.5x the floor\n");
    return 0;
}
