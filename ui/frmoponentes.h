#pragma once
// The opponents dialog: the two players' names, checked and stored on OK,
// the language's default names on Cancel.

#include "entero.h"
#include "ventanas.h"

#include <array>

class QLabel;
class QPushButton;

namespace ui {

class DialogoOponentes : public Dialogo {
  public:
    DialogoOponentes();
    // Every opening shows the language in force.
    void Form_Load() override;
    void Command1_Click();
    void Command2_Click();
    void Text1_KeyDown(Integer Index, int KeyCode);

    QFrame *SSPanel1;
    std::array<QLabel *, 1> label{};
    QLabel *Label1;
    std::array<CajaTexto *, 2> Text1{};
    QPushButton *Command1;
    QPushButton *Command2;

  private:
    void Informa(const QString &textoEs, const QString &textoEn);
};

} // namespace ui
