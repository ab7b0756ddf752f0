#include "ventanas.h"

#include "icono.h"
#include "modalidad.h"

#include <QApplication>
#include <QButtonGroup>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLayout>
#include <QLibraryInfo>
#include <QMainWindow>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTextBoundaryFinder>
#include <QTranslator>
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

QPushButton *CreaBoton(QWidget *padre, const QString &texto, const QRect &geometria)
{
    auto *b = new QPushButton(texto, padre);
    b->setGeometry(geometria);
    b->setAutoDefault(true); // Return and Enter press it while it has the focus
    return b;
}

Dialogo::Dialogo(const QString &titulo, int anchoTw, int altoTw)
{
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowCloseButtonHint);
    setWindowTitle(titulo);
    setWindowIcon(IconoPrograma());
    setFont(FuentePrograma());
    resize(Tw(anchoTw), Tw(altoTw));
    connect(this, &QDialog::finished, this, [this] { Descargate(); });
}

void Dialogo::paintEvent(QPaintEvent *e)
{
    if (fondo_.isValid())
        QPainter(this).fillRect(rect(), fondo_);
    else
        QDialog::paintEvent(e);
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
    EjecutaModal(this);
}

void CentraVentana(QWidget *w)
{
    if (w->layout())
        w->adjustSize(); // a laid-out window knows its size only once adjusted
    w->move(w->screen()->availableGeometry().center() - w->rect().center());
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

// A direction isolate (U+2066 to U+2069): the messages isolate each name
// themselves, and no text that assistive technology reads may hold one.
bool Aislante(QChar c)
{
    return c.unicode() >= 0x2066 && c.unicode() <= 0x2069;
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

void Panel3D::Caption(const QString &texto)
{
    setText(texto);
    // Read without the marks that isolate a name: setting the name also
    // tells assistive technology that it changed.
    setAccessibleName(QString(texto).removeIf(Aislante));
}

GrupoOpciones::GrupoOpciones(QObject *dueno) : grupo_(new QButtonGroup(dueno))
{
    QObject::connect(grupo_, &QButtonGroup::idToggled, grupo_, [this](int id, bool marcado) {
        // Tab reaches the group on its selected option; the arrow keys
        // move among all of them.
        Opcion(id)->setFocusPolicy(marcado ? Qt::StrongFocus : Qt::ClickFocus);
        if (marcado && Click)
            Click(static_cast<Integer>(id));
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

namespace {

// Where each character of the text, as a person counts them (grapheme
// clusters), ends. Qt's finder can put a boundary between the two halves of
// a surrogate pair after some joiner sequences: those are skipped.
QList<qsizetype> Fines(const QString &texto)
{
    QList<qsizetype> fines;
    QTextBoundaryFinder limites(QTextBoundaryFinder::Grapheme, texto);
    for (qsizetype p; (p = limites.toNextBoundary()) != -1;)
        if (p == texto.size() || !texto[p].isLowSurrogate())
            fines << p;
    return fines;
}

// The first `n` of them.
QString Primeros(const QString &texto, qsizetype n)
{
    const QList<qsizetype> fines = Fines(texto);
    return n <= 0 || fines.isEmpty() ? QString() : texto.left(fines[std::min(n, fines.size()) - 1]);
}

// What a one-line box takes of a text: its first line, without control
// characters, direction isolates and half of a surrogate pair.
QString UnaLinea(const QString &texto)
{
    QString linea;
    for (qsizetype i = 0; i < texto.size(); ++i) {
        const QChar c = texto[i];
        if (c == u'\n' || c == u'\r' || c == u'\v' || c == u'\f' || c == QChar(0x85) ||
            c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            break;
        if (c.isHighSurrogate() && i + 1 < texto.size() && texto[i + 1].isLowSurrogate())
            linea += texto.mid(i++, 2);
        else if (!c.isSurrogate() && c.category() != QChar::Other_Control && !Aislante(c))
            linea += c;
    }
    return linea;
}

} // namespace

CajaTexto::CajaTexto(QWidget *padre, const QRect &geometria, int largoMaximo)
    : QLineEdit(padre), largoMaximo_(largoMaximo)
{
    setGeometry(geometria);
    // Not setMaxLength: it counts UTF-16 units, and would keep half an emoji.
    connect(this, &QLineEdit::textChanged, this, &CajaTexto::Ajusta);
}

// An edit keeps the text on either side of it and adds of what came in only
// as much as fits, as a full box refuses a key; text set by code is taken
// from its start.
void CajaTexto::Ajusta(const QString &nuevo)
{
    if (nuevo == aceptado_)
        return;
    qsizetype antes = 0, despues = 0;
    if (isModified()) {
        const qsizetype comun = std::min(nuevo.size(), aceptado_.size());
        while (antes < comun && nuevo[antes] == aceptado_[antes])
            ++antes;
        while (despues < comun - antes &&
               nuevo[nuevo.size() - 1 - despues] == aceptado_[aceptado_.size() - 1 - despues])
            ++despues;
        // Both ends on whole characters of the new text.
        const QList<qsizetype> fines = Fines(nuevo);
        const auto previo = std::upper_bound(fines.begin(), fines.end(), antes);
        antes = previo == fines.begin() ? 0 : *(previo - 1);
        const auto siguiente = std::lower_bound(fines.begin(), fines.end(), nuevo.size() - despues);
        despues = siguiente == fines.end() ? 0 : nuevo.size() - *siguiente;
    }
    const QString inicio = nuevo.left(antes), fin = nuevo.right(despues);
    const QString entra = UnaLinea(nuevo.mid(antes, nuevo.size() - antes - despues));
    QString texto;
    for (qsizetype n = std::min<qsizetype>(Fines(entra).size(), largoMaximo_ + 1); n >= 0; --n) {
        texto = inicio + Primeros(entra, n) + fin;
        if (Fines(texto).size() <= largoMaximo_)
            break;
    }
    texto = Primeros(texto, largoMaximo_);
    aceptado_ = texto;
    if (texto != nuevo) {
        const qsizetype cursor = texto.size() - fin.size();
        setText(texto);
        setCursorPosition(int(std::max<qsizetype>(cursor, 0)));
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
    EjecutaModal(&caja);
}

void TextosQtEnEspanol(bool espanol)
{
    static QTranslator *catalogo = [] {
        auto *t = new QTranslator(qApp);
        if (!t->load(QLocale(QLocale::Spanish), QStringLiteral("qtbase"), QStringLiteral("_"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            qWarning("Qt's Spanish catalogue (qtbase_es.qm) is not installed");
        return t;
    }();
    QCoreApplication::removeTranslator(catalogo);
    if (espanol)
        QCoreApplication::installTranslator(catalogo);
}

QString Trim(const QString &texto)
{
    qsizetype inicio = 0;
    qsizetype fin = texto.size();
    while (inicio < fin && texto[inicio] == u' ')
        ++inicio;
    while (fin > inicio && texto[fin - 1] == u' ')
        --fin;
    return texto.mid(inicio, fin - inicio);
}
