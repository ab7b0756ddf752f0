#pragma once
// Every language-dependent text of the program, in the language last loaded.

#include <QString>

extern QString strAcerca;
extern QString strSalir;
extern QString strSeleccionIdioma;
extern QString strTitulo;
extern QString strOpciones;
extern QString strAcercaTexto;
extern QString strAceptar;
extern QString strCancelar;
extern QString strAcercaTitulo;
extern QString strJugadorUno;
extern QString strJugadorDos;
extern QString strFacil;
extern QString strMedio;
extern QString strNoGanas;
extern QString strNivelMenu;
extern QString strNuevoJuego;
extern QString strOponentesMenu;
extern QString strOponentes;
extern QString strNombrePrimero;
extern QString strNombreSegundo;
extern QString strGana;
extern QString strFelicidades;
extern QString strEmpate;
extern QString strTurnoDe;
extern QString strPierdes;
extern QString strTuTurno;
extern QString strNivel;

// Overwrites all the texts above with the language of the language window's
// selected option, English or Spanish, and sets that window's own label and
// title on the way.
void CargaIdioma();

// Qt's own texts (message-box buttons, the text boxes' context menu) in
// Spanish, or back in English.
void TextosQtEnEspanol(bool espanol);

// The caption application: copies the texts into the main window, the level
// dialog and the opponents dialog, creating those hidden where they do not
// exist, and composes the main window's title from the game title and Nivel.
void AplicaIdioma();
