#include "escritorio.h"

#include <QGuiApplication>
#include <QIcon>
#include <QStringList>

#include <cstdio>
#include <cstdlib>

namespace {

// What Qt says while it looks for a window system; said only if none opens.
QStringList &Razones()
{
    static QStringList razones;
    return razones;
}

// Qt ends a program that no window system takes with an abort and a page of
// advice: the player gets one line with Qt's reasons, and status 1. The
// plugin loader's own advice is left out: it names a package whether or not
// it is missing.
void AvisoDeArranque(QtMsgType tipo, const QMessageLogContext &contexto, const QString &texto)
{
    if ((tipo == QtWarningMsg || tipo == QtCriticalMsg) &&
        qstrcmp(contexto.category, "qt.qpa.plugin") != 0)
        Razones() << texto.trimmed();
    if (tipo != QtFatalMsg)
        return;
    std::fprintf(stderr, "supertirlo: no display to open a window on (%s): %s\n",
                 qgetenv("QT_QPA_PLATFORM").constData(),
                 qPrintable(Razones().join(QStringLiteral("; "))));
    std::_Exit(1);
}

} // namespace

void EligeSistemaDeVentanas()
{
#ifndef Q_OS_WIN
    // The X server first, XWayland included: its window manager frames every
    // window as designed, and minimises a dialog with the window it belongs to.
    // Windows has one window system, which Qt takes by itself.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
#endif
    qInstallMessageHandler(AvisoDeArranque);
}

void IdentificaPrograma()
{
    // The window system is open: Qt's messages go their usual way again.
    qInstallMessageHandler(nullptr);
    Razones().clear();
    // The Wayland app id, and on X11 (from Qt 6.11) the desktop-file hint;
    // docks also tie X11 windows to the entry by its StartupWMClass.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.supertirlo.SuperTirlo"));
    // One icon for every window and message box: the 32x32 picture and its
    // crisp double for high-density screens. One icon, not one per window:
    // the pixmaps drawn from an icon are cached under that icon's own key.
    QIcon icono(QStringLiteral(":/icons/32x32/apps/supertirlo.png"));
    icono.addFile(QStringLiteral(":/icons/64x64/apps/supertirlo.png"));
    QGuiApplication::setWindowIcon(icono);
}
