#pragma once
// The window services the program relies on, on Qt Widgets: windows created
// from their design on first reference and destroyed on unload, modal show
// that waits, option groups whose Click runs when code or the user selects,
// the raised 3-D panel, text boxes with a KeyDown handler, message boxes.

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>

#include <array>
#include <functional>

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

// "MS Sans Serif" where it exists, otherwise a face with its widths.
QFont FuentePrograma(double puntos = 8.25, bool negrita = false);

// A push button at its place in its container, running Click when pressed;
// Return and Enter press it while it has the focus.
QPushButton *CreaBoton(QWidget *padre, const QString &texto, const QRect &geometria,
                       const std::function<void()> &Click);

// Centres a top-level window on its screen: a window shown modeless, as Qt
// centres a modal dialog over the window it opens on.
void CentraVentana(QWidget *w);

// What every window of the program shares, on top of its Qt window class:
// the program's font, a title bar with a close button and the buttons of its
// kind (`tipo`); the constructor builds the design, Form_Load runs right
// after, and once unloaded the window is destroyed and never used again.
template <class VentanaQt> class Formulario : public VentanaQt {
  public:
    explicit Formulario(Qt::WindowFlags tipo)
    {
        this->setWindowFlags(tipo | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                             Qt::WindowCloseButtonHint);
        this->setFont(FuentePrograma());
    }
    virtual void Form_Load() {}
    bool Descargado() const { return descargado_; }
    // Modeless: visible at once, centred.
    void Muestra()
    {
        CentraVentana(this);
        this->show();
    }

  protected:
    // The one way out: the window goes once the event loop is back.
    void Descargate()
    {
        descargado_ = true;
        this->deleteLater();
    }

  private:
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

// A dialog window. However it closes (its own buttons through Descarga, the
// title-bar button, Escape) it goes through QDialog's own done and unloads.
class Dialogo : public Formulario<QDialog> {
  public:
    Dialogo(const QString &titulo, int anchoTw, int altoTw);
    // A background of its own instead of the system's button face, painted
    // by the window, whose palette stays the desktop's: the style caches its
    // drawings (a button's bevel) under the palette they were drawn with,
    // and a palette set on a window is a new one for every window made, so
    // each opening would leave its drawings in the cache for good.
    void PintaFondo(const QColor &color) { fondo_ = color; }
    QColor Fondo() const { return fondo_; }
    void Descarga() { done(Accepted); }
    // Modal: returns only once the window has been unloaded.
    void MuestraModal();

  protected:
    void paintEvent(QPaintEvent *e) override;

  private:
    QColor fondo_;
};

// The raised 3-D panel holding controls: bevel, RGB (236, 233, 216), dark
// text for the labels and options on it, whatever the desktop theme; text
// boxes on it keep the theme's own colours.
QFrame *CreaPanel(QWidget *padre, const QRect &geometria);

// The raised 3-D panel showing a text of its own, in bold. It holds no controls.
class Panel3D : public QLabel {
  public:
    Panel3D(QWidget *padre, const QRect &geometria, Qt::Alignment alineacion = Qt::AlignCenter);
    void Caption(const QString &texto) { setText(texto); }
};

// Option buttons in one container: exactly one selected.
// Click runs with the index whenever an option becomes selected, by the user
// or by Selecciona, before Selecciona returns.
class GrupoOpciones {
  public:
    explicit GrupoOpciones(QObject *dueno);
    QRadioButton *Agrega(QWidget *padre, const QRect &geometria, const QString &texto);
    void Selecciona(int indice);
    QRadioButton *Opcion(int indice) const;
    std::function<void(int)> Click;

  private:
    QButtonGroup *grupo_;
};

// A single-line text box whose KeyDown handler sees every key first; Enter
// arrives as key code 13 and goes no further. Its validator holds however
// text comes in: keys, an input method, paste, code, assistive technology.
class CajaTexto : public QLineEdit {
  public:
    CajaTexto(QWidget *padre, const QRect &geometria, QValidator *validador);
    std::function<void(int codigo)> KeyDown;

  protected:
    void keyPressEvent(QKeyEvent *e) override;

  private:
    void GuardaMarca();
    QString aceptado_;                   // the text as last taken
    std::array<int, 3> marca_{0, -1, 0}; // caret, selection start and length as last taken
};

// A modal information box with one OK button, showing its owner's icon;
// returns once it is closed.
void MsgBoxInformacion(QWidget *padre, const QString &titulo, const QString &texto);
