#pragma once
// Every language-dependent text of the program, in the language last loaded.

#include <QString>

inline QString strAcerca;
inline QString strSalir;
inline QString strSeleccionIdioma;
inline QString strTitulo;
inline QString strOpciones;
inline QString strAcercaTexto;
inline QString strAceptar;
inline QString strCancelar;
inline QString strAcercaTitulo;
inline QString strJugadorUno;
inline QString strJugadorDos;
inline QString strFacil;
inline QString strMedio;
inline QString strNoGanas;
inline QString strNivelMenu;
inline QString strNuevoJuego;
inline QString strOponentesMenu;
inline QString strOponentes;
inline QString strNombrePrimero;
inline QString strNombreSegundo;
inline QString strGana;
inline QString strFelicidades;
inline QString strEmpate;
inline QString strTurnoDe;
inline QString strPierdes;
inline QString strTuTurno;
inline QString strNivel;

// Overwrites all the texts above with their English or their Spanish.
void CargaTextos(bool ingles);

// Qt's own texts (message-box buttons, the text boxes' context menu) in
// Spanish, or back in English.
void TextosQtEnEspanol(bool espanol);

// The caption application: copies the texts into the main window, the level
// dialog and the opponents dialog, creating those hidden where they do not
// exist, and composes the main window's title from the game title and Nivel.
void AplicaIdioma();
