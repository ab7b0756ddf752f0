#include "escritorio.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QPlatformSurfaceEvent>
#include <QWindow>
#include <QtGui/qguiapplication_platform.h>

#include <wayland-client.h>
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

// Why no window can open on X11, or nothing if one can.
QString RazonSinX()
{
    const QByteArray pantalla = qgetenv("DISPLAY");
    if (pantalla.isEmpty())
        return QStringLiteral("X11: DISPLAY is not set");
    xcb_connection_t *x = xcb_connect(nullptr, nullptr);
    const bool rechazado = xcb_connection_has_error(x);
    xcb_disconnect(x);
    return rechazado ? QStringLiteral("X11: the display %1 refused the connection")
                           .arg(QString::fromLocal8Bit(pantalla))
                     : QString();
}

// Why no window can open on Wayland, or nothing if one can.
QString RazonSinWayland()
{
    const QByteArray nombre = qgetenv("WAYLAND_DISPLAY");
    const QString socket =
        nombre.isEmpty() ? QStringLiteral("wayland-0") : QString::fromLocal8Bit(nombre);
    // The library's own complaints would add lines of their own.
    wl_log_set_handler_client([](const char *, va_list) {});
    wl_display *compositor = wl_display_connect(nullptr);
    if (!compositor)
        return QStringLiteral("Wayland: no compositor at %1").arg(socket);
    wl_display_disconnect(compositor);
    const QString plugin = QLibraryInfo::path(QLibraryInfo::PluginsPath) +
                           QStringLiteral("/platforms/libqwayland-generic.so");
    return QFileInfo::exists(plugin)
               ? QString()
               : QStringLiteral(
                     "Wayland: Qt's Wayland plugin (package qt6-wayland) is not installed");
}

} // namespace

bool EligeSistemaDeVentanas()
{
    const QByteArray pedido = qgetenv("QT_QPA_PLATFORM");
    // The desktop's X server first, where there is one, XWayland included:
    // its window manager frames every window as designed, and minimises a
    // dialog together with the window it belongs to.
    const QList<QByteArray> sistemas =
        pedido.isEmpty() ? QList<QByteArray>{"xcb", "wayland"} : pedido.split(';');
    QStringList probados;
    for (const QByteArray &sistema : sistemas) {
        const QByteArray nombre = sistema.split(':').first();
        QString razon;
        if (nombre == "xcb")
            razon = RazonSinX();
        else if (nombre == "wayland")
            razon = RazonSinWayland();
        if (razon.isEmpty()) {
            if (pedido.isEmpty())
                qputenv("QT_QPA_PLATFORM", sistema);
            return true;
        }
        probados << razon;
    }
    std::fprintf(stderr, "supertirlo: no display to open a window on: %s\n",
                 qPrintable(probados.join(QStringLiteral("; "))));
    return false;
}

void IdentificaPrograma()
{
    QGuiApplication::setDesktopFileName(QString::fromLatin1(kIdEntrada));
    if (auto *x11 = qApp->nativeInterface<QNativeInterface::QX11Application>())
        qApp->installEventFilter(new NombraVentanasX11(x11->connection()));
}
