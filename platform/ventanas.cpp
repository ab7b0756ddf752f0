#include "ventanas.h"

#include "icono.h"

#include <QAccessible>
#include <QApplication>
#include <QButtonGroup>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLayout>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTranslator>

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

void Dialogo::PintaFondo(const QColor &color)
{
    QPalette p = palette();
    p.setColor(QPalette::Window, color);
    setPalette(p);
    setAutoFillBackground(true);
}

void Dialogo::MuestraModal()
{
    // Without an owner: modal to the whole application, and Qt centres it
    // over the active window, the main window.
    exec();
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
    QAccessibleEvent cambio(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&cambio);
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

CajaTexto::CajaTexto(QWidget *padre, const QRect &geometria, int largoMaximo) : QLineEdit(padre)
{
    setGeometry(geometria);
    setMaxLength(largoMaximo);
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
    caja.exec();
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
