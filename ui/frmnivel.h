#pragma once
// The level dialog: a click on an option sets Nivel at once; OK only closes.

#include "ventanas.h"

class QPushButton;

namespace ui {

class frmNivel : public Dialogo {
  public:
    frmNivel();
    void optNivel_Click(Integer Index);
    void cmdok_Click();

    Panel3D *SSPanel1;
    GrupoOpciones optNivel;
    QPushButton *cmdok;
};

} // namespace ui
