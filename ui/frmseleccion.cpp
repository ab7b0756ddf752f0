#include "frmseleccion.h"

#include "estado.h"
#include "formularios.h"
#include "idioma.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace ui {

namespace {
constexpr int kIngles = 0;
constexpr int kEspañol = 1;
} // namespace

frmSeleccion::frmSeleccion()
    : Dialogo(QStringLiteral("Idiom selection"), 3090, 1860, Qt::WindowCloseButtonHint),
      opciones(this)
{
    setFixedSize(size());
    PintaFondo(QColor(192, 192, 192));

    cmdAceptar = CreaBoton(this, QStringLiteral("&Ok"), TwRect(120, 1440, 1095, 375),
                           [this] { cmdAceptar_Click(); });
    cmdSalir = CreaBoton(this, QStringLiteral("&Exit"), TwRect(1920, 1440, 1095, 375),
                         [this] { cmdSalir_Click(); });

    Panel = new Panel3D(this, TwRect(90, 60, 2925, 1305));
    lblGracias = new QLabel(QStringLiteral("Thank you by playing my game"), Panel);
    lblGracias->setGeometry(TwRect(330, 240, 3615, 255));
    optIngles = opciones.Agrega(Panel, TwRect(300, 510, 1125, 255), QStringLiteral("E&nglish"));
    optEspañol = opciones.Agrega(Panel, TwRect(300, 870, 1125, 255), QStringLiteral("Es&pañol"));
    for (QWidget *w : {static_cast<QWidget *>(lblGracias), static_cast<QWidget *>(optIngles),
                       static_cast<QWidget *>(optEspañol)})
        w->setFont(FuentePrograma());
    optIngles->setChecked(true); // as designed, before any handler is attached
    opciones.Click = [this](Integer i) {
        if (i == kIngles)
            optIngles_Click();
        else
            optEspañol_Click();
    };

    setTabOrder(cmdAceptar, cmdSalir);
    setTabOrder(cmdSalir, optEspañol);
    setTabOrder(optEspañol, optIngles);
    cmdAceptar->setFocus();
}

void frmSeleccion::Form_Load()
{
    if (Idioma != 0)
        opciones.Selecciona(kEspañol);
    else if (optIngles->isChecked())
        optIngles_Click(); // already selected by design: load English all the same
    else
        opciones.Selecciona(kIngles);
}

void frmSeleccion::optEspañol_Click()
{
    EligeIdioma(QStringLiteral("&Aceptar"), QStringLiteral("&Salir"), 1);
}

void frmSeleccion::optIngles_Click()
{
    EligeIdioma(QStringLiteral("&Ok"), QStringLiteral("&Exit"), 0);
}

// The steps both options take, with their own button captions and language.
void frmSeleccion::EligeIdioma(const QString &aceptar, const QString &salir, Integer idioma)
{
    cmdAceptar->setText(aceptar);
    cmdSalir->setText(salir);
    Idioma = idioma;
    CargaIdioma();
    if (DesdeMenu)
        AplicaIdioma();
}

void frmSeleccion::cmdAceptar_Click()
{
    CargaIdioma();
    Descarga();
    if (!DesdeMenu)
        ::Form1().Muestra();
    else
        AplicaIdioma();
}

void frmSeleccion::cmdSalir_Click()
{
    Descarga();
}

void frmSeleccion::CargaIdioma()
{
    CargaTextos(optIngles->isChecked(), [this](const QString &gracias, const QString &titulo) {
        lblGracias->setText(gracias);
        setWindowTitle(titulo);
    });
}

} // namespace ui
