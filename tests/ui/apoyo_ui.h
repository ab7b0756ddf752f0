#pragma once
// Driving the real windows headless: a fresh program per test, the expected
// texts of both languages (tests/datos/textos.txt), and scripts of what a
// player does and sees (tests/datos/guiones.txt).

#include "apoyo.h"
#include "formularios.h"

#include <QApplication>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <ostream>

inline void PrintTo(const QString &s, std::ostream *os)
{
    *os << '"' << s.toStdString() << '"';
}

// The draw from 0.5 up lets the person open a game against the computer.
constexpr float kPersonaAbre = 0.75f;

// Every window destroyed, the state as before Main, the default source and
// the light theme back.
void ReiniciaPrograma();

class Programa : public ::testing::Test {
  protected:
    void SetUp() override { ReiniciaPrograma(); }
    void TearDown() override { ReiniciaPrograma(); }
};

// The values under `clave` and `modo` (es, en, design, tab) in textos.txt.
QStringList Datos(const std::string &clave, const std::string &modo);

// What the player sees of a control, and of a whole window (title first,
// then the controls in the order built, with their place in pixels when
// `lugar`), written as textos.txt writes them.
QString Describe(QWidget *w);
QStringList Textos(QWidget *v, bool lugar);

// Runs the event loop with `accion` as its first event and returns its exit
// code once the program ends by itself (99 if it has not within 3 seconds).
int CorreHastaElFin(const std::function<void()> &accion);

// Runs `accion` on the next modal window to open, if one opens within 2 s;
// the watch ends with it, or when its timer is deleted.
QTimer *CuandoModal(std::function<void(QWidget *)> accion);

// Main, then the language window's choice and Accept: the main window is up.
void Arranca(bool ingles);
void Clic(QAbstractButton *b);

// Runs a script of actions and checks, as guiones.txt explains them; `start`
// chooses English when `ingles`.
void Ejecuta(const QStringList &lineas, bool ingles);
