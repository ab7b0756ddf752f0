#pragma once
// The level dialog: a click on an option sets Nivel at once; OK only closes.

#include "entero.h"
#include "ventanas.h"

class QPushButton;

namespace ui {

class DialogoNivel : public Dialogo {
  public:
    DialogoNivel();
    void optNivel_Click(Integer Index);
    void cmdok_Click();

    QFrame *SSPanel1;
    GrupoOpciones optNivel;
    QPushButton *cmdok;
};

} // namespace ui
