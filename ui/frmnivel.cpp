#include "frmnivel.h"

#include "estado.h"

#include <QPushButton>
#include <QRadioButton>

namespace ui {

frmNivel::frmNivel()
    : Dialogo(QStringLiteral("Nivel de juego"), 2895, 1890, Qt::WindowCloseButtonHint),
      optNivel(this)
{
    setFixedSize(size());
    cmdok = CreaBoton(this, QStringLiteral("&Aceptar"), TwRect(900, 1440, 1095, 375),
                      [this] { cmdok_Click(); });

    SSPanel1 = new Panel3D(this, TwRect(120, 120, 2625, 1245));
    optNivel.Agrega(SSPanel1, TwRect(240, 150, 1680, 240), QStringLiteral("1._ Fácil."));
    optNivel.Agrega(SSPanel1, TwRect(240, 510, 1590, 240), QStringLiteral("2._ Regular."));
    optNivel.Agrega(SSPanel1, TwRect(240, 870, 2220, 240),
                    QStringLiteral("3._ A que no me ganas."));
    for (int i = 0; i < 3; ++i)
        optNivel.Opcion(i)->setFont(FuentePrograma());
    optNivel.Selecciona(2); // as designed, before any handler is attached
    optNivel.Click = [this](Integer i) { optNivel_Click(i); };

    setTabOrder(cmdok, optNivel.Opcion(2));
    cmdok->setFocus();
}

void frmNivel::optNivel_Click(Integer Index)
{
    Nivel = static_cast<Integer>(Index + 1);
}

void frmNivel::cmdok_Click()
{
    Descarga();
}

} // namespace ui
