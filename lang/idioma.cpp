#include "idioma.h"

QString strAcerca;
QString strSalir;
QString strSeleccionIdioma;
QString strTitulo;
QString strOpciones;
QString strAcercaTexto;
QString strAceptar;
QString strCancelar;
QString strAcercaTitulo;
QString strJugadorUno;
QString strJugadorDos;
QString strFacil;
QString strMedio;
QString strNoGanas;
QString strNivelMenu;
QString strNuevoJuego;
QString strOponentesMenu;
QString strOponentes;
QString strNombrePrimero;
QString strNombreSegundo;
QString strGana;
QString strFelicidades;
QString strEmpate;
QString strTurnoDe;
QString strPierdes;
QString strTuTurno;
QString strNivel;

namespace {

// The credit lines of the About box.
const QString kAutorEs = QStringLiteral("el equipo de Super Tirlo");
const QString kAutorEn = QStringLiteral("the Super Tirlo team");
const QString kContactoEs = QStringLiteral("las incidencias del proyecto");
const QString kContactoEn = QStringLiteral("the project's issue tracker");
const QString kPaginaEs = QStringLiteral("el repositorio del proyecto");
const QString kPaginaEn = QStringLiteral("the project's repository");
const QString kLugar = QStringLiteral("Internet");

const QString kFinLinea = QStringLiteral("\r\n");

} // namespace

void CargaTextos(bool ingles,
                 const std::function<void(const QString &, const QString &)> &textosSeleccion)
{
    if (ingles) {
        strOponentesMenu = QStringLiteral("&Opponents");
        strOponentes = QStringLiteral("Opponents");
        strNombrePrimero = QStringLiteral("Name to &first player:");
        strNombreSegundo = QStringLiteral("Name to &second player:");
        strNivel = QStringLiteral("Level");
        strNuevoJuego = QStringLiteral("&New game");
        strJugadorUno = QStringLiteral("player one");
        strJugadorDos = QStringLiteral("player two");
        textosSeleccion(QStringLiteral("Thank you for to play my game"),
                        QStringLiteral("Idiom selection"));
        strAcerca = QStringLiteral("&About...");
        strSalir = QStringLiteral("&Exit");
        strSeleccionIdioma = QStringLiteral("&Idiom Selection");
        strTitulo = QStringLiteral("The tic tac toe");
        strOpciones = QStringLiteral("&Options");
        strAcercaTexto = strTitulo + kFinLinea + kFinLinea + QStringLiteral("Program done by ") +
                         kAutorEn + kFinLinea + QStringLiteral("Comments in web: ") + kContactoEn +
                         kFinLinea + QStringLiteral("Web page: ") + kPaginaEn + kFinLinea + kLugar;
        strAceptar = QStringLiteral("&Ok");
        strCancelar = QStringLiteral("&Cancel");
        strAcercaTitulo = QStringLiteral("About...");
        strFacil = QStringLiteral("Easy");
        strMedio = QStringLiteral("Medium");
        strNoGanas = QStringLiteral("You can not win");
        strNivelMenu = QStringLiteral("&Level");
        strGana = QStringLiteral("Win ");
        strFelicidades = QStringLiteral("Congratulations, you win!");
        strEmpate = QStringLiteral("Draw game!");
        strTurnoDe = QString();
        strPierdes = QStringLiteral("You lose");
        strTuTurno = QStringLiteral("Your turn");
    } else {
        strOponentesMenu = QStringLiteral("&Oponentes");
        strOponentes = QStringLiteral("Oponentes");
        strNombrePrimero = QStringLiteral("Nombre del &primer jugador:");
        strNombreSegundo = QStringLiteral("Nombre del &segundo jugador:");
        strNuevoJuego = QStringLiteral("&Nuevo juego");
        strNivel = QStringLiteral("Nivel");
        strJugadorUno = QStringLiteral("Primer jugador");
        strJugadorDos = QStringLiteral("Segundo jugador");
        textosSeleccion(QStringLiteral("Gracias por jugar mi juego"),
                        QStringLiteral("Selección de idioma"));
        strAcerca = QStringLiteral("&Acerca...");
        strSalir = QStringLiteral("&Salir");
        strSeleccionIdioma = QStringLiteral("Se&lección de idioma");
        strTitulo = QStringLiteral("El famoso juego del tirlo");
        strOpciones = QStringLiteral("&Opciones");
        strAcercaTexto = strTitulo + kFinLinea + kFinLinea + QStringLiteral("Program hecho por ") +
                         kAutorEs + kFinLinea + QStringLiteral("Comentarios en el web: ") +
                         kContactoEs + kFinLinea + QStringLiteral("Página web: ") + kPaginaEs +
                         kFinLinea + kLugar;
        strAceptar = QStringLiteral("&Aceptar");
        strCancelar = QStringLiteral("&Cancelar");
        strAcercaTitulo = QStringLiteral("Acerca...");
        strFacil = QStringLiteral("Fácil");
        strMedio = QStringLiteral("Medio");
        strNoGanas = QStringLiteral("A que no ganas");
        strNivelMenu = QStringLiteral("&Nivel");
        strGana = QStringLiteral("¡Gana el jugador ");
        strFelicidades = QStringLiteral("¡Felicidades tu ganas!");
        strEmpate = QStringLiteral("¡Juego empatado!");
        strTurnoDe = QStringLiteral("Turno de ");
        strPierdes = QStringLiteral("Lo siento tu pierdes");
        strTuTurno = QStringLiteral("Tu turno");
    }
}
