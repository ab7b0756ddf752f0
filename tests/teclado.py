#!/usr/bin/python3
"""A keyboard-only player, heard through a screen reader.

Starts the game on the display and accessibility bus it is given, presses
keys with xdotool and reads every result back over AT-SPI, the way a screen
reader meets the program.
    teclado.py PROGRAM
"""
import os
import re
import subprocess
import sys
import time

import pyatspi


def espera(condicion, que, segundos=10):
    fin = time.time() + segundos
    while time.time() < fin:
        try:
            valor = condicion()
        except Exception:  # a window going away while it is read
            valor = None
        if valor:
            return valor
        time.sleep(0.1)
    raise AssertionError("waited in vain for " + que)


def nodos(nodo):
    yield nodo
    for i in range(nodo.childCount):
        hijo = nodo.getChildAtIndex(i)
        if hijo is not None:
            yield from nodos(hijo)


def programa():
    escritorio = pyatspi.Registry.getDesktop(0)
    for i in range(escritorio.childCount):
        app = escritorio.getChildAtIndex(i)
        if app is not None and app.name == "supertirlo":
            return app
    return None


def ventanas():
    app = programa()
    return [app.getChildAtIndex(i) for i in range(app.childCount)] if app else []


def ventana(titulo):
    """The window (frame, dialog or message box) with this title, once it is up."""
    return espera(lambda: next((v for v in ventanas() if v.name == titulo), None),
                  "the window '%s' (there are: %s)" % (titulo, [v.name for v in ventanas()]))


def activa(titulo):
    """The window in front with the keyboard, as the player's click on it
    leaves it: under load the window manager may map a new window unfocused."""
    subprocess.run(["xdotool", "search", "--sync", "--name", "^%s$" % re.escape(titulo),
                    "windowactivate", "--sync"], check=True, stdout=subprocess.DEVNULL)


def cerrada(titulo):
    espera(lambda: all(v.name != titulo for v in ventanas()), "'%s' to close" % titulo)


def enfocado(v):
    """The innermost node that says it has the focus."""
    return next((n for n in reversed(list(nodos(v)))
                 if n.getState().contains(pyatspi.STATE_FOCUSED)), None)


def marcado(n):
    return n.getState().contains(pyatspi.STATE_CHECKED)


def teclas(*nombres):
    subprocess.run(["xdotool", "key", "--delay", "60"] + list(nombres), check=True)
    time.sleep(0.15)


def foco_es(v, rol, nombre, checked=None):
    def bien():
        n = enfocado(v)
        return (n is not None and n.getRoleName() == rol and n.name == nombre
                and (checked is None or marcado(n) == checked))
    n = enfocado(v)
    espera(bien, "the focus on %s '%s' in '%s' (it is on %s '%s')" % (
        rol, nombre, v.name, n.getRoleName() if n else None, n.name if n else None))


def mensaje(titulo, texto, boton):
    """The information box: its text and its one button, closed with Enter."""
    caja = ventana(titulo)
    assert caja.getRoleName() == "alert", caja.getRoleName()
    textos = [n.name for n in nodos(caja)]
    assert texto in textos, textos
    botones = [n.name for n in nodos(caja) if n.getRoleName() == "push button"]
    assert botones == [boton], botones
    foco_es(caja, "push button", boton)
    teclas("Return")
    cerrada(titulo)


def nivel_por_teclado(titulo_menu, tecla, actual, flechas, nuevo):
    """The level dialog from the menu: Tab lands on the level in force, the
    arrows select, Enter is OK, and the title shows the new level."""
    teclas("alt+o", tecla)
    d = ventana(titulo_menu)
    foco_es(d, "push button", "Ok")
    teclas("Tab")
    foco_es(d, "radio button", actual, checked=True)
    teclas(*flechas)
    foco_es(d, "radio button", nuevo, checked=True)
    teclas("Return")
    cerrada(titulo_menu)


def idioma_por_teclado(titulo, aceptar, actual, flecha, nueva):
    """The language window: Tab, Tab lands on the language in force; the
    arrow selects the other one at once."""
    s = ventana(titulo)
    foco_es(s, "push button", aceptar)
    teclas("Tab", "Tab")
    foco_es(s, "radio button", actual, checked=True)
    teclas(flecha)
    foco_es(s, "radio button", nueva, checked=True)


def main():
    env = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb")
    juego = subprocess.Popen([sys.argv[1]], env=env)
    try:
        # Start-up: Tab, Tab reaches the selected option; Up selects English
        # at once; Enter on the option accepts it.
        ventana("Selección de idioma")
        activa("Selección de idioma")
        time.sleep(1)
        idioma_por_teclado("Selección de idioma", "Aceptar", "Español", "Up", "English")
        ventana("Idiom selection")
        teclas("Return")
        p = ventana("The tic tac toe (Level 3)")
        activa("The tic tac toe (Level 3)")
        time.sleep(1)

        # Enter on the focused empty square plays X there; the panel's new
        # text is there to be read.
        casillas = lambda: [n for n in nodos(p) if n.getRoleName() == "push button"
                            and n.name[:7] in ("Square ", "Casilla")]
        assert len(casillas()) == 9, [n.name for n in casillas()]
        for _ in range(9):
            n = enfocado(p)
            if n is not None and n.name.endswith(": empty"):
                break
            teclas("Tab")
        n = enfocado(p)
        assert n.name.endswith(": empty"), n.name
        assert n.description == "Press to play on this square", n.description
        jugada = n.name.split(":")[0]
        teclas("Return")
        espera(lambda: any(c.name == jugada + ": X" for c in casillas()), jugada + " to read X")
        ceros = sum(c.name.endswith(": 0") for c in casillas())
        panel = [n.name for n in nodos(p) if n.getRoleName() == "label"]
        assert "Your turn" in panel or "You lose" in panel, panel
        assert ceros >= 1, [c.name for c in casillas()]

        # The level dialog at each level.
        nivel_por_teclado("Level", "l", "You can not win", ["Up"], "Medium")
        ventana("The tic tac toe (Level 2)")
        nivel_por_teclado("Level", "l", "Medium", ["Up"], "Easy")
        ventana("The tic tac toe (Level 1)")
        nivel_por_teclado("Level", "l", "Easy", ["Down", "Down"], "You can not win")
        ventana("The tic tac toe (Level 3)")

        # Two players: Enter with empty names is refused, in English.
        teclas("alt+o", "1")
        d = ventana("Opponents")
        foco_es(d, "push button", "Ok")
        teclas("Return")
        mensaje("Information", "Please write the names", "OK")
        foco_es(d, "text", "Name to first player:")
        teclas("Escape")
        cerrada("Opponents")

        # The language from the menu: Tab lands on English, the selected one;
        # Down switches to Spanish at once; Enter accepts.
        teclas("alt+o", "i")
        idioma_por_teclado("Idiom selection", "Ok", "English", "Down", "Español")
        ventana("El famoso juego del tirlo (Nivel 3)")
        teclas("Return")
        cerrada("Selección de idioma")
        nombres = [c.name for c in casillas()]
        assert len(nombres) == 9 and all(n.startswith("Casilla ") for n in nombres), nombres
        assert "Casilla 1, fila 1, columna 1: vacía" in nombres, nombres
        assert casillas()[0].description == "Pulse para jugar en esta casilla"

        # The same refusal in Spanish, with Qt's own button in Spanish too.
        teclas("alt+o", "o")
        d = ventana("Oponentes")
        teclas("Return")
        mensaje("Información", "Favor de introducir los nombres de los oponentes", "Aceptar")
        teclas("Escape")
        cerrada("Oponentes")

        teclas("alt+o", "s")
        assert juego.wait(timeout=10) == 0
        print("keyboard session heard through AT-SPI: fine")
    finally:
        if juego.poll() is None:
            juego.kill()


if __name__ == "__main__":
    main()
