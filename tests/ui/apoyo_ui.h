#pragma once
// Driving the real windows headless: a fresh program per test, the expected
// texts of both languages (tests/datos/textos.txt), and scripts of what a
// player does and sees (tests/datos/guiones.txt).

#include "apoyo.h"
#include "escritorio.h"
#include "estado.h"
#include "formularios.h"
#include "modalidad.h"

#include <QtTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <ostream>

inline void PrintTo(const QString &s, std::ostream *os)
{
    *os << '"' << s.toStdString() << '"';
}

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

// The colour of a background the widget paints itself, if it does.
QColor ColorFondo(QWidget *w);

// What the player sees of a control, and of a whole window (title first,
// then the controls in the order built; with `lugar`, the window's client
// size and each control's place in pixels), written as textos.txt writes them.
QString Describe(QWidget *w);
QStringList Textos(QWidget *v, bool lugar);

// The modal window in front, else the language window at start-up, else the
// main window.
QWidget *Delante();

void Clic(QAbstractButton *b);

// What assistive technology reaches of a widget or a menu item: the
// interface Qt's AT-SPI bridge acts through.
QAccessibleInterface *Accesible(QObject *o);

// Runs a script of actions and checks, as guiones.txt explains them; `start`
// chooses English when `ingles`.
void Ejecuta(const QStringList &lineas, bool ingles);
