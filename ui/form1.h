#pragma once
// The main window: the board, the status panel, the new-game button and the
// Options menu.

#include "avisos.h"
#include "entero.h"
#include "ventanas.h"

#include <QMainWindow>

#include <array>

class QAction;
class QMenu;
class QPushButton;

namespace ui {

class VentanaPrincipal : public Formulario<QMainWindow> {
  public:
    VentanaPrincipal();
    void Form_Load() override;

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
    // Form_Unload. The main window is the last one open, and the program
    // ends with it.
    void closeEvent(QCloseEvent *e) override;

  private:
    // A message on the panel: its text, then a player's name kept apart
    // from it (whatever its script or direction marks), then its close.
    void Anuncia(const QString &texto, const QString &nombre = {}, const QString &cierre = {});
    Integer PintaComputadora();
    // A line or a full board ends the game with the message of the line
    // (text, name, close) or the draw's: true if it ended.
    bool FinSiTermino(const QString &texto, const QString &nombre = {}, const QString &cierre = {});
    // What the board and the panel now say, told to a screen reader once:
    // the squares just played (-1 for none), then the panel's message.
    void Informa(std::initializer_list<Integer> jugadas);

    Avisador *avisos_ = new Avisador(this);
};

} // namespace ui
