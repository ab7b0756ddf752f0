#include "frmseleccion.h"

#include "estado.h"
#include "formularios.h"
#include "idioma.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace ui {

VentanaIdioma::VentanaIdioma()
    : Dialogo(QStringLiteral("Idiom selection"), 3090, 1860), opciones(this)
{
    setFixedSize(size());
    PintaFondo(QColor(192, 192, 192));

    cmdAceptar = CreaBoton(this, QStringLiteral("&Ok"), TwRect(120, 1440, 1095, 375),
                           [this] { cmdAceptar_Click(); });
    cmdSalir = CreaBoton(this, QStringLiteral("&Exit"), TwRect(1920, 1440, 1095, 375),
                         [this] { cmdSalir_Click(); });

    Panel = CreaPanel(this, TwRect(90, 60, 2925, 1305));
    lblGracias = new QLabel(QStringLiteral("Thank you by playing my game"), Panel);
    lblGracias->setGeometry(TwRect(330, 240, 3615, 255));
    optIngles = opciones.Agrega(Panel, TwRect(300, 510, 1125, 255), QStringLiteral("E&nglish"));
    optEspañol = opciones.Agrega(Panel, TwRect(300, 870, 1125, 255), QStringLiteral("Es&pañol"));
    optIngles->setChecked(true); // as designed, before any handler is attached
    opciones.Click = [this](Integer i) {
        if (i == kIngles)
            optIngles_Click();
        else
            optEspañol_Click();
    };

    // Tab goes Accept, Exit, the selected option, as built. Accept, first in
    // that order, is the default button Qt gives a dialog: Enter on an option
    // accepts it.
}

void VentanaIdioma::Form_Load()
{
    if (Idioma != kIngles)
        opciones.Selecciona(kEspanol);
    else
        optIngles_Click(); // already selected by design: load English all the same
}

void VentanaIdioma::optEspañol_Click()
{
    EligeIdioma(QStringLiteral("&Aceptar"), QStringLiteral("&Salir"), kEspanol);
}

void VentanaIdioma::optIngles_Click()
{
    EligeIdioma(QStringLiteral("&Ok"), QStringLiteral("&Exit"), kIngles);
}

void VentanaIdioma::CargaIdioma()
{
    const bool ingles = optIngles->isChecked();
    lblGracias->setText(ingles ? QStringLiteral("Thank you for to play my game")
                               : QStringLiteral("Gracias por jugar mi juego"));
    setWindowTitle(ingles ? QStringLiteral("Idiom selection")
                          : QStringLiteral("Selección de idioma"));
    CargaTextos(ingles);
}

// The steps both options take, with their own button captions and language.
void VentanaIdioma::EligeIdioma(const QString &aceptar, const QString &salir, Integer idioma)
{
    cmdAceptar->setText(aceptar);
    cmdSalir->setText(salir);
    Idioma = idioma;
    TextosQtEnEspanol(idioma == kEspanol);
    CargaIdioma();
    if (DesdeMenu)
        AplicaIdioma();
    // A screen reader says the option; the window's new title and text are
    // told once, in the new language. The load's own choice is not a switch.
    if (isVisible())
        avisos_->Avisa(windowTitle() + QStringLiteral(". ") + lblGracias->text());
}

void VentanaIdioma::cmdAceptar_Click()
{
    CargaIdioma();
    Descarga();
    if (!DesdeMenu)
        Form1().Muestra();
    else
        AplicaIdioma();
}

void VentanaIdioma::cmdSalir_Click()
{
    Descarga();
}

} // namespace ui
