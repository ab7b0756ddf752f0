#include "frmnivel.h"

#include "estado.h"

#include <QPushButton>
#include <QRadioButton>

namespace ui {

DialogoNivel::DialogoNivel() : Dialogo(QStringLiteral("Nivel de juego"), 2895, 1890), optNivel(this)
{
    setFixedSize(size());
    cmdok = CreaBoton(this, QStringLiteral("&Aceptar"), TwRect(900, 1440, 1095, 375),
                      [this] { cmdok_Click(); });

    SSPanel1 = CreaPanel(this, TwRect(120, 120, 2625, 1245));
    optNivel.Agrega(SSPanel1, TwRect(240, 150, 1680, 240), QStringLiteral("1._ Fácil."));
    optNivel.Agrega(SSPanel1, TwRect(240, 510, 1590, 240), QStringLiteral("2._ Regular."));
    optNivel.Agrega(SSPanel1, TwRect(240, 870, 2220, 240),
                    QStringLiteral("3._ A que no me ganas."));
    optNivel.Selecciona(2); // as designed, before any handler is attached
    optNivel.Click = [this](Integer i) { optNivel_Click(i); };
    // Tab goes from OK to the selected option and back, as built.
}

void DialogoNivel::optNivel_Click(Integer Index)
{
    Nivel = static_cast<Integer>(Index + 1);
}

void DialogoNivel::cmdok_Click()
{
    Descarga();
}

} // namespace ui
