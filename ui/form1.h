#pragma once
// The main window: the board, the status panel, the new-game button and the
// Options menu.

#include "ventanas.h"

#include <QMainWindow>

#include <array>

class QAction;
class QMenu;
class QPushButton;

namespace ui {

class Form1 : public QMainWindow, public Formulario {
  public:
    Form1();
    void Form_Load() override;
    // Centred on the screen, modeless.
    void Muestra();

    void cmdtir_Click(Integer Index);
    void cmdnuevo_Click();
    void mnu1vs2_Click();
    void mnuvspc_Click();
    void mnuNivel_Click();
    void mnuoponentes_Click();
    void mnuSeleccionIdioma_Click();
    void mnuacerca_Click();
    void mnuSalir_Click();

    Panel3D *Panel;
    QPushButton *cmdnuevo;
    std::array<QPushButton *, 9> cmdtir{};
    QMenu *mnuOpciones;
    QAction *mnu1vs2;
    QAction *mnuvspc;
    QAction *mnuNivel;
    QAction *mnuoponentes;
    QAction *mnuSeleccionIdioma;
    QAction *mnuacerca;
    QAction *mnuSalir;

    // The squares' accessible names and descriptions, from their captions,
    // in the language of Idioma.
    void ActualizaAccesibles();

  protected:
    // Form_Unload: closing the main window ends the program.
    void closeEvent(QCloseEvent *e) override;

  private:
    void JuegaCasilla(Integer Index);
    void PintaComputadora();
    void FinDePartida(const QString &mensaje);
};

} // namespace ui
