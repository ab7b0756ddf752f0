#pragma once
// The program's windows, each referred to by its name: the first reference
// creates it from its design.

#include "form1.h"
#include "frmabout.h"
#include "frmnivel.h"
#include "frmoponentes.h"
#include "frmseleccion.h"

extern Ventana<ui::VentanaPrincipal> Form1;
extern Ventana<ui::DialogoNivel> frmNivel;
extern Ventana<ui::DialogoOponentes> frmoponentes;
extern Ventana<ui::DialogoAcerca> frmAbout;
extern Ventana<ui::VentanaIdioma> frmSeleccion;

// The program's entry point: the defaults, then the language window, modeless.
void Main();
