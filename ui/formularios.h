#pragma once
// The program's windows, each referred to by its name: the first reference
// creates it from its design.

#include "form1.h"
#include "frmabout.h"
#include "frmnivel.h"
#include "frmoponentes.h"
#include "frmseleccion.h"

extern Ventana<ui::Form1> Form1;
extern Ventana<ui::frmNivel> frmNivel;
extern Ventana<ui::frmoponentes> frmoponentes;
extern Ventana<ui::frmAbout> frmAbout;
extern Ventana<ui::frmSeleccion> frmSeleccion;

// The program's entry point: the defaults, then the language window, modeless.
void Main();
