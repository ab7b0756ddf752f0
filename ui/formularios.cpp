#include "formularios.h"

#include "estado.h"

Ventana<ui::VentanaPrincipal> Form1;
Ventana<ui::DialogoNivel> frmNivel;
Ventana<ui::DialogoOponentes> frmoponentes;
Ventana<ui::DialogoAcerca> frmAbout;
Ventana<ui::VentanaIdioma> frmSeleccion;

void Main()
{
    ValoresIniciales();
    frmSeleccion().Muestra();
}
