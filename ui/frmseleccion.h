#pragma once
// The language window: first window of every run, and reopened from the menu
// to switch the language of every window at once.

#include "avisos.h"
#include "entero.h"
#include "ventanas.h"

class QLabel;
class QPushButton;

namespace ui {

class VentanaIdioma : public Dialogo {
  public:
    VentanaIdioma();
    void Form_Load() override;
    void optEspañol_Click();
    void optIngles_Click();
    void cmdAceptar_Click();
    void cmdSalir_Click();

    QFrame *Panel;
    QLabel *lblGracias;
    GrupoOpciones opciones; // indexed by Idioma: 0 optIngles, 1 optEspañol
    QRadioButton *optIngles;
    QRadioButton *optEspañol;
    QPushButton *cmdAceptar;
    QPushButton *cmdSalir;

  private:
    // The texts of the language of optIngles (Spanish unless it is
    // selected), this window's own label and title with them.
    void CargaIdioma();
    void EligeIdioma(const QString &aceptar, const QString &salir, Integer idioma);
    Avisador *avisos_ = new Avisador(this);
};

} // namespace ui
