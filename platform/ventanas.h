#pragma once
// The window services the program relies on, on Qt Widgets: windows created
// from their design on first reference and destroyed on unload, modal show
// that waits, option groups whose Click runs when code or the user selects,
// the raised 3-D panel, text boxes with a KeyDown handler, message boxes.

#include "entero.h"
#include "icono.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>

#include <functional>
#include <vector>

class QAbstractButton;
class QButtonGroup;
class QPushButton;
class QRadioButton;

// Twips to pixels: 1440 twips to the inch at 96 logical dots per inch.
constexpr int Tw(int twips)
{
    return (twips + 7) / 15;
}
inline QRect TwRect(int left, int top, int width, int height)
{
    return {Tw(left), Tw(top), Tw(width), Tw(height)};
}

// "MS Sans Serif" where it exists, otherwise the desktop's sans-serif.
QFont FuentePrograma(double puntos = 8.25, bool negrita = false);

// A push button at its place in its container, whose Click runs `click`.
QPushButton *CreaBoton(QWidget *padre, const QString &texto, const QRect &geometria,
                       const std::function<void()> &click);

// A window of the program: its design is built by the constructor, Form_Load
// runs right after, and once unloaded it is gone for good.
class Formulario {
  public:
    virtual ~Formulario() = default;
    virtual void Form_Load() {}
    bool Descargado() const { return descargado_; }

  protected:
    bool descargado_ = false;
};

// A window referred to by name: the first reference (or the first after an
// unload) creates it from its design, hidden, and runs its Form_Load.
template <class T> class Ventana {
  public:
    T &operator()()
    {
        if (!Existe()) {
            w_ = new T;
            w_->Form_Load();
        }
        return *w_;
    }
    bool Existe() const { return w_ && !w_->Descargado(); }

  private:
    QPointer<T> w_;
};

// A dialog window. Closing it by any means (its own buttons through Descarga,
// the title-bar button, Escape) unloads it.
class Dialogo : public QDialog, public Formulario {
  public:
    explicit Dialogo(const QString &titulo, int anchoTw, int altoTw, Qt::WindowFlags botones);
    // A background of its own instead of the system's button face.
    void PintaFondo(const QColor &color);
    void Descarga() { close(); }
    // Modeless: visible at once, centred on the main window or on the screen.
    void Muestra();
    // Modal: returns only once the window has been unloaded.
    void MuestraModal();

  protected:
    void closeEvent(QCloseEvent *e) override;
    void reject() override { close(); }
};

// Centres a top-level window on the main window, or on its screen when the
// main window is not shown.
void CentraVentana(QWidget *w);

// The raised 3-D panel: bevel, RGB (236, 233, 216), bold text, no focus.
class Panel3D : public QLabel {
  public:
    Panel3D(QWidget *padre, const QRect &geometria, Qt::Alignment alineacion = Qt::AlignCenter);
    // Shows the text and tells assistive technology that it changed, so a
    // screen reader announces every new message.
    void Caption(const QString &texto);
};

// Option buttons in one container: exactly one selected, or none after Limpia.
// Click runs with the index whenever an option becomes selected, by the user
// or by Selecciona, before Selecciona returns.
class GrupoOpciones {
  public:
    explicit GrupoOpciones(QObject *dueno);
    QRadioButton *Agrega(QWidget *padre, const QRect &geometria, const QString &texto);
    void Selecciona(int indice);
    bool Valor(int indice) const;
    void Limpia();
    QRadioButton *Opcion(int indice) const;
    std::function<void(Integer)> Click;

  private:
    QButtonGroup *grupo_;
};

// A single-line text box whose KeyDown handler sees every key first; Enter
// arrives as key code 13 and goes no further.
class CajaTexto : public QLineEdit {
  public:
    CajaTexto(QWidget *padre, const QRect &geometria, int largoMaximo);
    std::function<void(int codigo, int shift)> KeyDown;

  protected:
    void keyPressEvent(QKeyEvent *e) override;
};

// A modal information box with one OK button; returns once it is closed.
void MsgBoxInformacion(QWidget *padre, const QString &titulo, const QString &texto);

// Closes every window and leaves the event loop: the end of the program.
void TerminaPrograma();

// The text without its leading and trailing spaces (only the space character).
QString Trim(const QString &texto);
