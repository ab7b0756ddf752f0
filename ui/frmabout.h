#pragma once
// The About box: the game's title and credits in the language loaded.

#include "ventanas.h"

class QPushButton;

namespace ui {

class DialogoAcerca : public Dialogo {
  public:
    DialogoAcerca();
    void Form_Load() override;
    void cmdAceptar_Click();

    Panel3D *Panel;
    QPushButton *cmdAceptar;
};

} // namespace ui
