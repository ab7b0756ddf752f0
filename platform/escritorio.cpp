#include "escritorio.h"

#include <QGuiApplication>
#include <QPlatformSurfaceEvent>
#include <QWindow>
#include <QtGui/qguiapplication_platform.h>

#include <wayland-client.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>

namespace {

// The desktop entry's id: org.supertirlo.SuperTirlo.desktop.
constexpr char kIdEntrada[] = "org.supertirlo.SuperTirlo";

// True when the compositor offers to draw the windows' frames itself.
bool CompositorEnmarca(wl_display *compositor)
{
    bool enmarca = false;
    static const wl_registry_listener oyente{
        [](void *dato, wl_registry *, uint32_t, const char *interfaz, uint32_t) {
            *static_cast<bool *>(dato) |=
                !std::strcmp(interfaz, "zxdg_decoration_manager_v1") ||
                !std::strcmp(interfaz, "org_kde_kwin_server_decoration_manager");
        },
        [](void *, wl_registry *, uint32_t) {}};
    wl_registry *registro = wl_display_get_registry(compositor);
    wl_registry_add_listener(registro, &oyente, &enmarca);
    wl_display_roundtrip(compositor);
    wl_registry_destroy(registro);
    return enmarca;
}

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

} // namespace

void EligeSistemaDeVentanas()
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || qEnvironmentVariableIsEmpty("DISPLAY") ||
        qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return;
    if (wl_display *compositor = wl_display_connect(nullptr)) {
        if (!CompositorEnmarca(compositor))
            qputenv("QT_QPA_PLATFORM", "xcb");
        wl_display_disconnect(compositor);
    }
}

void IdentificaPrograma()
{
    QGuiApplication::setDesktopFileName(QString::fromLatin1(kIdEntrada));
    if (auto *x11 = qApp->nativeInterface<QNativeInterface::QX11Application>())
        qApp->installEventFilter(new NombraVentanasX11(x11->connection()));
}
