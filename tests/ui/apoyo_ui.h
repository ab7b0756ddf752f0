#pragma once
// Driving the real windows headless: a fresh program per test, modal windows
// answered from the event loop, and short ways to the controls.

#include "apoyo.h"
#include "formularios.h"

#include <QApplication>
#include <QPushButton>
#include <QString>

#include <functional>
#include <ostream>

// Readable failures.
inline void PrintTo(const QString &s, std::ostream *os)
{
    *os << '"' << s.toStdString() << '"';
}

// The draw that decides who opens a game against the computer: from 0.5 up
// the person does, below it the computer.
constexpr float kPersonaAbre = 0.75f;
constexpr float kPCAbre = 0.25f;

// Every window destroyed, the state as before Main, the texts empty, the
// generator back to its initial state.
void ReiniciaPrograma();

// Runs the application's event loop with `accion` as its first event and
// returns the loop's exit code once the program ends by itself (99 if it has
// not ended within three seconds).
int CorreHastaElFin(const std::function<void()> &accion);

// Runs `accion` on the next modal window to open (one that is not the
// active modal window right now), as soon as it is up. The watcher is gone
// once it has acted.
QPointer<QObject> CuandoModal(std::function<void(QWidget *)> accion);

// Main, then the language window's choice and Accept: the main window is up.
void Arranca(bool ingles);

// Types the text key by key, any Unicode letter included.
void Teclea(QWidget *w, const QString &texto);

// Clicks the buttons, in order.
void Clic(QAbstractButton *b);
void Juega(std::initializer_list<int> botones);

// The nine captions in button order, "." for an empty one.
std::string Casillas();
QString Estado();
QString Titulo();

// Answers the opponents dialog that opens next: types the two names and
// presses OK (or Cancel when `cancela`).
void RespondeOponentes(const QString &uno, const QString &dos, bool cancela = false);

// The information box that is up: its title and text, then OK.
struct Mensaje {
    QString titulo;
    QString texto;
};
Mensaje CierraMensaje(QWidget *caja);

// Whether some top-level window of this type is visible.
template <class T> bool Visible()
{
    for (QWidget *w : QApplication::topLevelWidgets())
        if (qobject_cast<T *>(w) && w->isVisible())
            return true;
    return false;
}
