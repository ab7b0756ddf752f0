#include "escritorio.h"

#include <QGuiApplication>
#include <QPlatformSurfaceEvent>
#include <QWindow>
#include <QtGui/qguiapplication_platform.h>

#include <xcb/xcb.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

// The desktop entry's id: org.supertirlo.SuperTirlo.desktop.
constexpr char kIdEntrada[] = "org.supertirlo.SuperTirlo";

// Sets the desktop-file hints of every X11 window as it is created: GNOME
// reads the first, KDE the second.
class NombraVentanasX11 : public QObject {
  public:
    explicit NombraVentanasX11(xcb_connection_t *x) : QObject(qApp), x_(x)
    {
        const char *nombres[] = {"UTF8_STRING", "_GTK_APPLICATION_ID", "_KDE_NET_WM_DESKTOP_FILE"};
        xcb_intern_atom_cookie_t pedidos[3];
        for (int i = 0; i < 3; ++i)
            pedidos[i] = xcb_intern_atom(x_, false, uint16_t(std::strlen(nombres[i])), nombres[i]);
        for (int i = 0; i < 3; ++i) {
            xcb_intern_atom_reply_t *r = xcb_intern_atom_reply(x_, pedidos[i], nullptr);
            atomos_[i] = r ? r->atom : xcb_atom_t(XCB_ATOM_NONE);
            std::free(r);
        }
    }

  protected:
    bool eventFilter(QObject *o, QEvent *e) override
    {
        if (e->type() == QEvent::PlatformSurface && o->isWindowType() &&
            static_cast<QPlatformSurfaceEvent *>(e)->surfaceEventType() ==
                QPlatformSurfaceEvent::SurfaceCreated) {
            const auto ventana = xcb_window_t(static_cast<QWindow *>(o)->winId());
            for (int i = 1; i < 3; ++i)
                xcb_change_property(x_, XCB_PROP_MODE_REPLACE, ventana, atomos_[i], atomos_[0], 8,
                                    uint32_t(std::strlen(kIdEntrada)), kIdEntrada);
        }
        return false;
    }

  private:
    xcb_connection_t *x_;
    xcb_atom_t atomos_[3];
};

// What Qt says while it looks for a window system; said only if none opens.
QStringList &Razones()
{
    static QStringList razones;
    return razones;
}

// Qt ends a program that no window system takes with an abort and a page of
// advice: the player gets one line with Qt's reasons, and status 1.
void AvisoDeArranque(QtMsgType tipo, const QMessageLogContext &, const QString &texto)
{
    if (tipo == QtWarningMsg || tipo == QtCriticalMsg)
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
    // The X server first, XWayland included: its window manager frames every
    // window as designed, and minimises a dialog with the window it belongs to.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
    qInstallMessageHandler(AvisoDeArranque);
}

void IdentificaPrograma()
{
    // The window system is open: Qt's messages go their usual way again.
    qInstallMessageHandler(nullptr);
    Razones().clear();
    QGuiApplication::setDesktopFileName(QString::fromLatin1(kIdEntrada));
    if (auto *x11 = qApp->nativeInterface<QNativeInterface::QX11Application>())
        qApp->installEventFilter(new NombraVentanasX11(x11->connection()));
}
