#include "formularios.h"

#include "estado.h"

Ventana<ui::Form1> Form1;
Ventana<ui::frmNivel> frmNivel;
Ventana<ui::frmoponentes> frmoponentes;
Ventana<ui::frmAbout> frmAbout;
Ventana<ui::frmSeleccion> frmSeleccion;

void Main()
{
    ValoresIniciales();
    frmSeleccion().Muestra();
}
