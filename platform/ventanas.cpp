#include "ventanas.h"

#include "modalidad.h"

#include <QApplication>
#include <QButtonGroup>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLayout>
#include <QMainWindow>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QWindow>

QFont FuentePrograma(double puntos, bool negrita)
{
    // The classic dialog face where it is installed, else a face with the
    // classic widths (the layout is measured for them), else the desktop's
    // own sans-serif, at the same point sizes.
    static const QFont base = [] {
        QFont b;
        b.setFamilies({QStringLiteral("MS Sans Serif"), QStringLiteral("Liberation Sans"),
                       QFontDatabase::systemFont(QFontDatabase::GeneralFont).family()});
        b.setStyleHint(QFont::SansSerif);
        return b;
    }();
    QFont f = base;
    f.setPointSizeF(puntos);
    f.setWeight(negrita ? QFont::Bold : QFont::Normal);
    return f;
}

QPushButton *CreaBoton(QWidget *padre, const QString &texto, const QRect &geometria,
                       const std::function<void()> &Click)
{
    auto *b = new QPushButton(texto, padre);
    b->setGeometry(geometria);
    b->setAutoDefault(true); // Return and Enter press it while it has the focus
    QObject::connect(b, &QPushButton::clicked, padre, Click);
    return b;
}

Dialogo::Dialogo(const QString &titulo, int anchoTw, int altoTw) : Formulario(Qt::Dialog)
{
    setWindowTitle(titulo);
    resize(Tw(anchoTw), Tw(altoTw));
    connect(this, &QDialog::finished, this, [this] { Descargate(); });
}

void Dialogo::paintEvent(QPaintEvent *)
{
    if (fondo_.isValid())
        QPainter(this).fillRect(rect(), fondo_);
}

void Dialogo::MuestraModal()
{
    // Without an owner: modal to the whole application. The window system
    // is still told which window it opens over, the main window, so that a
    // Wayland compositor places it there and every desktop keeps it above;
    // Qt centres it over that window.
    for (QWidget *w : QApplication::topLevelWidgets())
        if (qobject_cast<QMainWindow *>(w) && w->isVisible()) {
            winId(); // its native window, which carries the link
            windowHandle()->setTransientParent(w->windowHandle());
        }
    exec();
}

void CentraVentana(QWidget *w)
{
    if (w->layout())
        w->adjustSize(); // a laid-out window knows its size only once adjusted
    // The frame is what is centred (move places it). Windows frames a window
    // as it is made, so its size is known from then on; an X11 window manager
    // frames it only once shown, and the margins are still 0.
    w->winId();
    const QRect marco(QPoint(), w->size().grownBy(w->windowHandle()->frameMargins()));
    w->move(w->screen()->availableGeometry().center() - marco.center());
}

namespace {

void EstiloPanel(QFrame *panel, const QRect &geometria)
{
    panel->setGeometry(geometria);
    panel->setFrameStyle(QFrame::Panel | QFrame::Raised);
    panel->setLineWidth(2);
    panel->setAutoFillBackground(true);
    QPalette p = panel->palette();
    p.setColor(QPalette::Window, QColor(236, 233, 216));
    // The panel is light under every theme: its texts stay dark.
    p.setColor(QPalette::WindowText, Qt::black);
    panel->setPalette(p);
}

} // namespace

QFrame *CreaPanel(QWidget *padre, const QRect &geometria)
{
    auto *panel = new QFrame(padre);
    EstiloPanel(panel, geometria);
    return panel;
}

Panel3D::Panel3D(QWidget *padre, const QRect &geometria, Qt::Alignment alineacion) : QLabel(padre)
{
    EstiloPanel(this, geometria);
    setFont(FuentePrograma(8.25, true));
    setAlignment(alineacion);
    setTextFormat(Qt::PlainText);
}

GrupoOpciones::GrupoOpciones(QObject *dueno) : grupo_(new QButtonGroup(dueno))
{
    QObject::connect(grupo_, &QButtonGroup::idToggled, grupo_, [this](int id, bool marcado) {
        // Tab reaches the group on its selected option; the arrow keys
        // move among all of them.
        Opcion(id)->setFocusPolicy(marcado ? Qt::StrongFocus : Qt::ClickFocus);
        if (marcado && Click)
            Click(id);
    });
}

QRadioButton *GrupoOpciones::Agrega(QWidget *padre, const QRect &geometria, const QString &texto)
{
    auto *opcion = new QRadioButton(texto, padre);
    opcion->setGeometry(geometria);
    opcion->setFocusPolicy(Qt::ClickFocus);
    grupo_->addButton(opcion, static_cast<int>(grupo_->buttons().size()));
    return opcion;
}

void GrupoOpciones::Selecciona(int indice)
{
    Opcion(indice)->setChecked(true);
}

QRadioButton *GrupoOpciones::Opcion(int indice) const
{
    return static_cast<QRadioButton *>(grupo_->button(indice));
}

CajaTexto::CajaTexto(QWidget *padre, const QRect &geometria, QValidator *validador)
    : QLineEdit(padre)
{
    setGeometry(geometria);
    setValidator(validador);
    // Text set by code or by assistive technology passes no validator, and
    // assistive technology reaches a box behind a modal window too: what the
    // validator would refuse, or the box may not take now, is undone.
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (hasAcceptableInput() && Alcanzable(this))
            aceptado_ = text();
        else
            setText(aceptado_);
    });
    // So are the caret and the selection.
    connect(this, &QLineEdit::cursorPositionChanged, this, &CajaTexto::GuardaMarca);
    connect(this, &QLineEdit::selectionChanged, this, &CajaTexto::GuardaMarca);
}

void CajaTexto::GuardaMarca()
{
    const std::array ahora{cursorPosition(), selectionStart(), selectionLength()};
    if (Alcanzable(this) || ahora == marca_) {
        marca_ = ahora;
        return;
    }
    const auto [cursor, inicio, largo] = marca_;
    if (largo == 0) {
        deselect();
        setCursorPosition(cursor);
    } else if (cursor == inicio) { // selected backwards
        setSelection(inicio + largo, -largo);
    } else {
        setSelection(inicio, largo);
    }
}

void CajaTexto::keyPressEvent(QKeyEvent *e)
{
    const bool enter = e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter;
    if (KeyDown)
        KeyDown(enter ? 13 : e->key());
    if (!enter) // Enter is handled: the dialog's default button must not see it too
        QLineEdit::keyPressEvent(e);
}

void MsgBoxInformacion(QWidget *padre, const QString &titulo, const QString &texto)
{
    QMessageBox caja(QMessageBox::Information, titulo, texto, QMessageBox::Ok, padre);
    // Qt 6.11 lets the keyboard select the text, so it takes the focus, and
    // a screen reader then reads it only if the player moves there: the
    // text is read as the box's own, with its title, when it opens.
    caja.setTextInteractionFlags(Qt::NoTextInteraction);
    caja.exec();
}
