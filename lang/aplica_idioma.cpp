#include "estado.h"
#include "formularios.h"
#include "idioma.h"

#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>

void AplicaIdioma()
{
    const QString palabraNivel =
        Idioma != kIngles ? QStringLiteral(" (Nivel ") : QStringLiteral(" (Level ");
    Form1().setWindowTitle(strTitulo + palabraNivel + QString::number(Nivel) + QStringLiteral(")"));
    Form1().mnuOpciones->setTitle(strOpciones);
    frmNivel().optNivel.Opcion(0)->setText(strFacil);
    frmNivel().optNivel.Opcion(1)->setText(strMedio);
    frmNivel().optNivel.Opcion(2)->setText(strNoGanas);
    frmNivel().cmdok->setText(strAceptar);
    frmNivel().setWindowTitle(strNivel);
    frmoponentes().Command1->setText(strAceptar);
    frmoponentes().Command2->setText(strCancelar);
    Form1().cmdnuevo->setText(strNuevoJuego);
    Form1().mnuNivel->setText(strNivelMenu);
    Form1().mnuSeleccionIdioma->setText(strSeleccionIdioma);
    Form1().mnuacerca->setText(strAcerca);
    Form1().mnuSalir->setText(strSalir);
    frmoponentes().setWindowTitle(strOponentes);
    frmoponentes().label[0]->setText(strNombrePrimero);
    frmoponentes().Label1->setText(strNombreSegundo);
    Form1().mnuoponentes->setText(strOponentesMenu);
    // Not a caption: what a screen reader says of the squares follows the language too.
    Form1().ActualizaAccesibles();
}
