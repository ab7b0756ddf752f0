#include "frmabout.h"

#include "idioma.h"

#include <QPushButton>

namespace ui {

DialogoAcerca::DialogoAcerca() : Dialogo(QStringLiteral("About..."), 5625, 2130)
{
    setFixedSize(size());
    PintaFondo(QColor(192, 192, 192));

    cmdAceptar = CreaBoton(this, QStringLiteral("&&Ok"), TwRect(2145, 1680, 1335, 375),
                           [this] { cmdAceptar_Click(); });
    Panel = new Panel3D(this, TwRect(120, 90, 5355, 1515), Qt::AlignLeft | Qt::AlignTop);
    Panel->setMargin(2);
}

void DialogoAcerca::Form_Load()
{
    // The text keeps its CR LF line ends; the label breaks lines at LF.
    Panel->Caption(QString(strAcercaTexto).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    cmdAceptar->setText(strAceptar);
    setWindowTitle(strAcercaTitulo);
}

void DialogoAcerca::cmdAceptar_Click()
{
    Descarga();
}

} // namespace ui
