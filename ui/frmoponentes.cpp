#include "frmoponentes.h"

#include "estado.h"
#include "idioma.h"
#include "nombres.h"

#include <QLabel>
#include <QPushButton>

namespace ui {

DialogoOponentes::DialogoOponentes() : Dialogo(QStringLiteral("Oponentes"), 3990, 2235)
{
    Command1 = CreaBoton(this, QStringLiteral("&Aceptar"), TwRect(728, 1800, 975, 375),
                         [this] { Command1_Click(); });
    Command2 = CreaBoton(this, QStringLiteral("&Cancelar"), TwRect(2288, 1800, 975, 375),
                         [this] { Command2_Click(); });

    SSPanel1 = CreaPanel(this, TwRect(60, 60, 3885, 1665));
    label[0] = new QLabel(QStringLiteral("Nombre del primer oponente:"), SSPanel1);
    label[0]->setGeometry(TwRect(225, 240, 3015, 255));
    Text1[0] = new CajaTexto(SSPanel1, TwRect(225, 480, 3255, 285), new ValidadorNombre(this));
    Label1 = new QLabel(QStringLiteral("Nombre del segundo oponente:"), SSPanel1);
    Label1->setGeometry(TwRect(225, 870, 2775, 255));
    Text1[1] = new CajaTexto(SSPanel1, TwRect(210, 1110, 3255, 285), new ValidadorNombre(this));
    for (Integer i = 0; i < 2; ++i)
        Text1[i]->KeyDown = [this, i](int codigo) { Text1_KeyDown(i, codigo); };
    label[0]->setBuddy(Text1[0]);
    Label1->setBuddy(Text1[1]);

    // Tab: OK, Cancel, the second name, the first; OK has the focus first.
    setTabOrder(Command2, Text1[1]);
    Command1->setDefault(true); // Enter presses OK unless Cancel has the focus
}

void DialogoOponentes::Form_Load()
{
    Command1->setText(strAceptar);
    Command2->setText(strCancelar);
    setWindowTitle(strOponentes);
    label[0]->setText(strNombrePrimero);
    Label1->setText(strNombreSegundo);
}

void DialogoOponentes::Command1_Click()
{
    const QString uno = Text1[0]->text();
    const QString dos = Text1[1]->text();
    if (Trim(uno).isEmpty() || Trim(dos).isEmpty()) {
        Informa(QStringLiteral("Favor de introducir los nombres de los oponentes"),
                QStringLiteral("Please write the names"));
        return;
    }
    // Compared as typed: "Ana" and "Ana " are two different names.
    if (uno == dos) {
        Informa(QStringLiteral("Error: los oponentes son los mismos."),
                QStringLiteral("Error: the opponents are same."));
        return;
    }
    Jugador1 = Trim(uno).toStdString();
    Jugador2 = Trim(dos).toStdString();
    Descarga();
}

void DialogoOponentes::Command2_Click()
{
    Jugador1 = strJugadorUno.toStdString();
    Jugador2 = strJugadorDos.toStdString();
    Descarga();
}

void DialogoOponentes::Text1_KeyDown(Integer, int KeyCode)
{
    if (KeyCode == 13)
        Command1_Click();
}

// The information box in the language of Idioma, then back to the first name.
void DialogoOponentes::Informa(const QString &textoEs, const QString &textoEn)
{
    if (Idioma == kEspanol)
        MsgBoxInformacion(this, QStringLiteral("Información"), textoEs);
    else
        MsgBoxInformacion(this, QStringLiteral("Information"), textoEn);
    Text1[0]->setFocus();
}

} // namespace ui
