#include "form1.h"

#include "accesible.h"
#include "azar.h"
#include "estado.h"
#include "formularios.h"
#include "idioma.h"
#include "movimiento.h"
#include "nombres.h"

#include <QLayout>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>

namespace {

// The client area, with the grid drawn on it beneath the buttons and the panel.
class Superficie : public QWidget {
  public:
    explicit Superficie(QWidget *padre) : QWidget(padre) { setFixedSize(Tw(4785), Tw(4875)); }

  protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter p(this);
        p.setPen(QPen(palette().color(QPalette::WindowText), 3, Qt::SolidLine, Qt::FlatCap));
        for (int x : {1695, 2895}) // Line1 0 and 1
            p.drawLine(Tw(x), Tw(630), Tw(x), Tw(4230));
        for (int y : {1830, 2910}) // Line2 2 and 0
            p.drawLine(Tw(375), Tw(y), Tw(4395), Tw(y));
    }
};

// The name of the player whose turn it is.
QString Jugador()
{
    return QString::fromStdString(JugadorDelTurno());
}

} // namespace

namespace ui {

VentanaPrincipal::VentanaPrincipal()
    : Formulario(Qt::Window | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint)
{
    setWindowTitle(QStringLiteral("Super Tirlo"));

    auto *superficie = new Superficie(this);
    setCentralWidget(superficie);

    Panel = new Panel3D(superficie, TwRect(570, 90, 3585, 585));
    // A message naming a player of wide characters takes the panel's second line.
    Panel->setWordWrap(true);

    const QFont marcas = FuentePrograma(24);
    for (Integer k = 0; k < 9; ++k) {
        cmdtir[k] = CreaBoton(superficie, QString(),
                              TwRect(615 + 1200 * (k % 3), 870 + 1080 * (k / 3), 945, 825),
                              [this, k] { cmdtir_Click(k); });
        cmdtir[k]->setFont(marcas);
    }
    cmdnuevo = CreaBoton(superficie, QStringLiteral("&Nuevo Juego"), TwRect(1695, 4380, 1215, 405),
                         [this] { cmdnuevo_Click(); });

    // Tab order, a cycle: the bottom-right square, 0 to 7 as built, then new game.
    setTabOrder(cmdtir[7], cmdnuevo);
    cmdtir[8]->setFocus();

    mnuOpciones = menuBar()->addMenu(QStringLiteral("&Opciones"));
    const auto item = [this](const QString &texto, void (VentanaPrincipal::*handler)(),
                             bool marcable) {
        QAction *a = mnuOpciones->addAction(texto);
        a->setCheckable(marcable);
        connect(a, &QAction::triggered, this, [this, a, handler, marcable] {
            // The handlers decide the check marks: undo Qt's own toggle.
            if (marcable)
                a->setChecked(!a->isChecked());
            (this->*handler)();
        });
        return a;
    };
    mnu1vs2 = item(QStringLiteral("&1 vs 2"), &VentanaPrincipal::mnu1vs2_Click, true);
    mnuvspc = item(QStringLiteral("&Vs PC"), &VentanaPrincipal::mnuvspc_Click, true);
    mnuvspc->setChecked(true);
    mnuOpciones->addSeparator();
    mnuNivel = item(QStringLiteral("&Nivel"), &VentanaPrincipal::mnuNivel_Click, false);
    mnuoponentes = item(QStringLiteral("&Oponentes"), &VentanaPrincipal::mnuoponentes_Click, false);
    mnuoponentes->setEnabled(false);
    mnuSeleccionIdioma = item(QStringLiteral("&Selección de idioma"),
                              &VentanaPrincipal::mnuSeleccionIdioma_Click, false);
    mnuacerca = item(QStringLiteral("&Acerca"), &VentanaPrincipal::mnuacerca_Click, false);
    mnuSalir = item(QStringLiteral("&Salir"), &VentanaPrincipal::mnuSalir_Click, false);

    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void VentanaPrincipal::Form_Load()
{
    Nivel = 3;
    AplicaIdioma();
    Modo = kContraPC;
    cmdnuevo_Click();
    // Seeded last: the first game is set up from the generator's fixed state.
    Randomize(SegundosDesdeMedianoche());
}

void VentanaPrincipal::closeEvent(QCloseEvent *)
{
    Descargate();
}

void VentanaPrincipal::cmdtir_Click(Integer Index)
{
    QPushButton *boton = cmdtir[Index];
    if (!boton->text().isEmpty() || !Jugando)
        return; // dropped without a sign
    cmdnuevo->setEnabled(false);
    const Integer c = Index % 3;
    const Integer r = Index / 3;
    if (Modo == kContraPC || Turno == kTurnoJugador1) {
        boton->setText(QStringLiteral("X"));
        Tablero(c, r) = kEquis;
    } else {
        boton->setText(QStringLiteral("0"));
        Tablero(c, r) = kCero;
    }
    if (Modo == kContraPC)
        FinSiTermino(strFelicidades);
    else
        FinSiTermino(strGana, Trim(Jugador()), QStringLiteral("!"));
    Integer respuesta = -1; // the square the computer replies on
    if (Modo == kDosJugadores && Jugando) {
        Turno = Turno == kTurnoJugador1 ? kTurnoJugador2 : kTurnoJugador1;
        Anuncia(strTurnoDe, Jugador());
    }
    if (Modo == kContraPC && Jugando) {
        // No reply only on a full board, which a running game never has:
        // then the click ends with the player's move.
        if (MovimientoPC(Tablero)) {
            respuesta = PintaComputadora();
            if (!FinSiTermino(strPierdes))
                Anuncia(strTuTurno);
        }
    }
    Informa({Index, respuesta});
}

void VentanaPrincipal::Anuncia(const QString &texto, const QString &nombre, const QString &cierre)
{
    Panel->Caption(texto + Aislado(nombre) + cierre);
    Panel->setAccessibleName(texto + nombre + cierre);
}

bool VentanaPrincipal::FinSiTermino(const QString &texto, const QString &nombre,
                                    const QString &cierre)
{
    if (HayGanador(Tablero))
        Anuncia(texto, nombre, cierre);
    else if (TableroLleno(Tablero))
        Anuncia(strEmpate);
    else
        return false;
    cmdnuevo->setEnabled(true);
    Jugando = false;
    return true;
}

void VentanaPrincipal::cmdnuevo_Click()
{
    cmdnuevo->setEnabled(false);
    LimpiaTablero(Tablero);
    for (QPushButton *b : cmdtir)
        b->setText(QString());
    Integer apertura = -1; // the square the computer opens on
    if (Modo != kContraPC) {
        Turno = static_cast<Integer>(AlAzar(2) + 1);
        Jugando = true;
        Anuncia(strTurnoDe, Jugador());
    } else {
        if (AlAzar(2) == 0) {
            MovimientoPC(Tablero);
            apertura = PintaComputadora();
        }
        Jugando = true;
        Anuncia(strTuTurno);
    }
    Informa({apertura});
}

// Shows "0" on every square the computer holds that still has no caption:
// the last such square, or -1 if none.
Integer VentanaPrincipal::PintaComputadora()
{
    Integer pintada = -1;
    for (Integer k = 0; k < 9; ++k) {
        QPushButton *b = cmdtir[k];
        if (Tablero(k % 3, k / 3) == kCero && b->text().isEmpty()) {
            b->setText(QStringLiteral("0"));
            pintada = k;
        }
    }
    return pintada;
}

void VentanaPrincipal::ActualizaAccesibles()
{
    for (Integer k = 0; k < 9; ++k) {
        QPushButton *b = cmdtir[k];
        // Only what changed: a screen reader hears of every change.
        if (const QString nombre = NombreCasilla(k, b->text()); b->accessibleName() != nombre)
            b->setAccessibleName(nombre);
        // An invitation to play only where a press plays.
        const QString descripcion =
            Jugando && b->text().isEmpty() ? DescripcionCasilla() : QString();
        if (b->accessibleDescription() != descripcion)
            b->setAccessibleDescription(descripcion);
    }
}

void VentanaPrincipal::Informa(std::initializer_list<Integer> jugadas)
{
    ActualizaAccesibles();
    QStringList partes;
    for (Integer k : jugadas)
        if (k >= 0)
            partes << cmdtir[k]->accessibleName();
    partes << Panel->accessibleName();
    partes.removeAll(QString()); // an empty message, as two nameless players get, says nothing
    avisos_->Avisa(partes.join(QStringLiteral(". ")));
}

void VentanaPrincipal::mnu1vs2_Click()
{
    if (mnu1vs2->isChecked())
        return;
    mnuoponentes->setEnabled(true);
    mnuvspc->setChecked(false);
    mnu1vs2->setChecked(true);
    mnuNivel->setEnabled(false);
    mnuoponentes_Click();
    Modo = kDosJugadores;
    AlAzar(2); // a turn the new game draws again: only the draw itself counts
    cmdnuevo_Click();
}

void VentanaPrincipal::mnuvspc_Click()
{
    if (mnuvspc->isChecked())
        return;
    mnuoponentes->setEnabled(false);
    mnuvspc->setChecked(true);
    mnu1vs2->setChecked(false);
    mnuNivel->setEnabled(true);
    Nivel = 3;
    AplicaIdioma();
    Modo = kContraPC;
    cmdnuevo_Click();
}

void VentanaPrincipal::mnuNivel_Click()
{
    frmNivel().optNivel.Selecciona(Nivel - 1); // it opens on the level in force
    frmNivel().MuestraModal();
    AplicaIdioma();
    cmdnuevo_Click();
}

void VentanaPrincipal::mnuoponentes_Click()
{
    frmoponentes().MuestraModal();
}

void VentanaPrincipal::mnuSeleccionIdioma_Click()
{
    DesdeMenu = true;
    frmSeleccion().MuestraModal();
    AplicaIdioma();
}

void VentanaPrincipal::mnuacerca_Click()
{
    frmAbout().MuestraModal();
}

void VentanaPrincipal::mnuSalir_Click()
{
    close();
}

} // namespace ui
