#!/usr/bin/python3
"""A keyboard-only player, heard through a screen reader.

Starts the game on the display and accessibility bus it is given, presses
keys with xdotool, reads every result back over AT-SPI, the way a screen
reader meets the program, and checks what Orca, the screen reader running
beside it, says after each key: whole games in both languages, the dialogs
and the message boxes.
    teclado.py PROGRAM ORCA-DEBUG-FILE
"""
import os
import re
import subprocess
import sys
import threading
import time

import pyatspi

# The panel's last message of a game, in either language.
FIN = ("Congratulations, you win!", "You lose", "Draw game!", "¡Felicidades tu ganas!",
       "Lo siento tu pierdes", "¡Juego empatado!")


# How long the player waits for the screen reader. On a loaded machine Orca
# has been seen working through its queue 10 s behind the keys, each event
# half a second, and then saying everything.
ORCA = 30


def espera(condicion, que, segundos=10):
    """The condition's value once it holds; `que` says, when it never does, what was awaited."""
    fin = time.time() + segundos
    while time.time() < fin:
        try:
            valor = condicion()
        except Exception:  # a window going away while it is read
            valor = None
        if valor:
            return valor
        time.sleep(0.05)
    raise AssertionError("waited in vain for " + (que() if callable(que) else que))


class Orca:
    """What Orca says and shows, from the lines SPEECH OUTPUT and BRAILLE
    LINE of its debug file. Only the game's own texts are checked, never the
    words an Orca release uses for a role ("push button", "dialog", ...)."""

    def __init__(self, archivo):
        self.archivo, self.desde = archivo, 0

    def lineas(self, clase):
        """All it said, or put on the braille display, since the last mark."""
        with open(self.archivo, encoding="utf-8", errors="replace") as f:
            f.seek(self.desde)
            texto = f.read()
        if clase == "braille":
            return re.findall(r"BRAILLE LINE:  '(.*)'", texto)
        return re.findall(r"SPEECH OUTPUT: '(.*)' ?\{'established", texto)

    def dicho(self):
        return self.lineas("speech")

    def marca(self):
        """From here on; first Orca catches up with what came before, as a
        player waits for the screen reader: behind a long queue of events
        Orca drops notifications (its flood guard)."""
        tamano, inicio = -1, time.time()
        quieto = inicio
        while time.time() - quieto < 0.2 and time.time() - inicio < ORCA:
            if os.path.getsize(self.archivo) != tamano:
                tamano, quieto = os.path.getsize(self.archivo), time.time()
            time.sleep(0.05)
        self.desde = os.path.getsize(self.archivo)

    def oye(self, *textos, segundos=ORCA):
        """Waits until it has said each text, in this order, each as whole
        words of an utterance (Orca adds a role's words before or after)."""
        def oido():
            resto = list(textos)
            for d in self.dicho():
                if resto and re.search(r"(?<!\S)%s(?!\w)" % re.escape(resto[0]), d):
                    resto.pop(0)
            return not resto
        espera(oido, lambda: "Orca to say %s; it said %s" % (list(textos), self.dicho()), segundos)

    def aviso(self, esperado):
        """The notification that tells what the last key did, spoken once
        and shown once on the braille display, exactly as `esperado` (read
        from the windows) says it must be. The windows are read again only
        when the display has changed, or a second on: each reading is many
        questions the game answers between Orca's own, and under load they
        would hold Orca back."""
        leido = {"lineas": None, "hora": 0.0}

        def mostrado():
            lineas = self.lineas("braille")
            if lineas == leido["lineas"] and time.time() - leido["hora"] < 1:
                return None
            texto = esperado().rstrip(".")
            leido.update(lineas=lineas, hora=time.time())
            return texto if texto in lineas else None
        texto = espera(mostrado, lambda: "the braille line '%s'; Orca showed %s and said %s" % (
            esperado(), self.lineas("braille"), self.dicho()), ORCA)
        assert self.lineas("braille").count(texto) == 1, (texto, self.lineas("braille"))
        dicho = [d for d in self.dicho() if d.rstrip(".") == texto]
        assert len(dicho) == 1, (texto, self.dicho())
        print("braille:", texto)


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
                  lambda: "the window '%s' (there are: %s)" % (titulo, [v.name for v in ventanas()]))


def activa(titulo):
    """The window in front with the keyboard, as the player's click on it
    leaves it: under load the window manager may map a new window unfocused."""
    espera(lambda: subprocess.run(["xdotool", "search", "--sync", "--name",
                                   "^%s$" % re.escape(titulo), "windowactivate", "--sync"],
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL
                                  ).returncode == 0, "the window manager to activate " + titulo)


def cerrada(titulo):
    """The window gone, and the one under it active again, to take the next keys."""
    espera(lambda: all(v.name != titulo for v in ventanas()), "'%s' to close" % titulo)
    espera(lambda: any(v.getState().contains(pyatspi.STATE_ACTIVE) for v in ventanas()),
           "a window to be active after '%s'" % titulo)


def enfocado(v):
    """The innermost node that says it has the focus."""
    return next((n for n in reversed(list(nodos(v)))
                 if n.getState().contains(pyatspi.STATE_FOCUSED)), None)


def marcado(n):
    return n.getState().contains(pyatspi.STATE_CHECKED)


def teclas(*nombres):
    subprocess.run(["xdotool", "key", "--delay", "60"] + list(nombres), check=True)


def menu(orca, letra):
    """Alt+O in the main window, as a person types it: Alt held until the
    screen reader has taken it, then O; once Orca reads the open menu, the
    item's access key. Under load, an Alt+O that Qt's accessibility bridge
    and Orca pass between them too late opens nothing: the player presses
    it again, as a person would, and the output says so each time."""
    for vez in range(3):
        plazo = 3 if vez < 2 else 10
        try:
            activa(next(v.name for v in ventanas() if v.getRole() == pyatspi.ROLE_FRAME))
            orca.marca()
            subprocess.run(["xdotool", "keydown", "alt"], check=True)
            try:
                orca.oye("left alt", segundos=plazo)
                teclas("o")
            finally:
                subprocess.run(["xdotool", "keyup", "alt"], check=True)
            orca.oye("1 vs 2", segundos=plazo)
            return teclas(letra)
        except AssertionError as e:
            print("Alt+O again: the menu did not open in %d s (%s)" % (plazo, e))
            teclas("Escape")
    raise AssertionError("the menu never opened")


def foco_es(v, rol, nombre, checked=None):
    def bien():
        n = enfocado(v)
        return (n is not None and n.getRole() == rol and n.name == nombre
                and (checked is None or marcado(n) == checked))
    espera(bien, lambda: "the focus on %s '%s' in '%s' (it is on %s)" % (
        rol, nombre, v.name, [(n.getRoleName(), n.name) for n in [enfocado(v)] if n]))


def casillas(p):
    return [n for n in nodos(p) if n.getRole() == pyatspi.ROLE_PUSH_BUTTON
            and n.name[:7] in ("Square ", "Casilla")]


def panel(p):
    """The status panel: the label on screen (a notification's is hidden)."""
    return next(n.name for n in nodos(p) if n.getRole() == pyatspi.ROLE_LABEL
                and n.getState().contains(pyatspi.STATE_SHOWING))


def anuncio(p, orca, antes=None, casilla=None):
    """Orca says the square played (the one named `casilla`), then every
    other square marked since `antes` (all of them for a new game), each as
    the square reads, and the panel's message."""
    def esperado():
        marcadas = [c.name for c in casillas(p) if c.name[-1] in "X0"]
        jugada = [n for n in marcadas if casilla and n.startswith(casilla)]
        return ". ".join(jugada + [n for n in marcadas if n not in jugada + (antes or [])]
                         + [panel(p)])
    orca.aviso(esperado)


def tab(p):
    """Tab, and the focus moved."""
    antes = enfocado(p).name
    teclas("Tab")
    espera(lambda: enfocado(p).name != antes, "the focus to leave " + antes)


def partida(p, orca):
    """Plays the next empty square, by Tab and Enter, until the game is over;
    then Enter on a taken square says nothing, and Tab reads the next one."""
    while not (panel(p) in FIN or panel(p).startswith(("Win ", "¡Gana "))):
        while enfocado(p).name[-1] in "X0":
            tab(p)
        antes = [c.name for c in casillas(p)]
        orca.marca()
        teclas("Return")
        anuncio(p, orca, antes, enfocado(p).name.rsplit(": ", 1)[0] + ": ")
    orca.marca()
    teclas("Return")
    tab(p)
    orca.oye(enfocado(p).name)
    assert not any(b.endswith(panel(p)) for b in orca.lineas("braille")), orca.lineas("braille")


def mensaje(orca, titulo, texto, boton):
    """The information box: its text and its one button, heard and closed with Enter."""
    caja = ventana(titulo)
    assert caja.getRole() == pyatspi.ROLE_ALERT, caja.getRoleName()
    textos = [n.name for n in nodos(caja)]
    assert texto in textos, textos
    botones = [n.name for n in nodos(caja) if n.getRole() == pyatspi.ROLE_PUSH_BUTTON]
    assert botones == [boton], botones
    foco_es(caja, pyatspi.ROLE_PUSH_BUTTON, boton)
    orca.oye(titulo, texto, boton)
    teclas("Return")
    cerrada(titulo)


def nivel_por_teclado(orca, actual, flechas, nuevo, titulo, detras=None):
    """The level dialog from the menu: Tab lands on the level in force, the
    arrows select, Enter is OK; Orca says each option and its state, then
    the new title, and the new game. With `detras` (the main window), Exit
    and About are first pressed there over the accessibility bus, as a
    screen reader or a voice control may: nothing happens, and the dialog
    still takes the keys."""
    menu(orca, "l")
    d = ventana("Level")
    foco_es(d, pyatspi.ROLE_PUSH_BUTTON, "Ok")
    if detras:
        for nombre in ("About...", "Exit"):
            item = next(n for n in nodos(detras) if n.getRole() == pyatspi.ROLE_MENU_ITEM
                        and n.name == nombre)
            # A press that opened a dialog would not answer until it closed.
            threading.Thread(target=item.queryAction().doAction, args=(0,), daemon=True).start()
        time.sleep(1)
        assert programa() and [v.name for v in ventanas()] == [detras.name, "Level"], \
            [v.name for v in ventanas()]
        foco_es(d, pyatspi.ROLE_PUSH_BUTTON, "Ok")
    teclas("Tab")
    foco_es(d, pyatspi.ROLE_RADIO_BUTTON, actual, checked=True)
    orca.marca()
    teclas(*flechas)
    foco_es(d, pyatspi.ROLE_RADIO_BUTTON, nuevo, checked=True)
    orca.oye(nuevo)
    teclas("Return")
    cerrada("Level")
    orca.oye(titulo)
    anuncio(ventana(titulo), orca)


def idioma_por_teclado(orca, titulo, aceptar, actual, flecha, nueva, cambio):
    """The language window: Tab, Tab lands on the language in force; the
    arrow selects the other one at once, and Orca says it, then the window's
    new title and text (`cambio`)."""
    s = ventana(titulo)
    foco_es(s, pyatspi.ROLE_PUSH_BUTTON, aceptar)
    teclas("Tab", "Tab")
    foco_es(s, pyatspi.ROLE_RADIO_BUTTON, actual, checked=True)
    orca.marca()
    teclas(flecha)
    foco_es(s, pyatspi.ROLE_RADIO_BUTTON, nueva, checked=True)
    orca.oye(nueva)
    orca.aviso(lambda: cambio)


def main():
    env = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb")
    orca = Orca(sys.argv[2])
    juego = subprocess.Popen([sys.argv[1]], env=env)
    try:
        # Start-up: Tab, Tab reaches the selected option; Up selects English
        # at once; Enter on the option accepts it, and the first game begins.
        ventana("Selección de idioma")
        activa("Selección de idioma")
        orca.oye("Selección de idioma", "Aceptar")
        idioma_por_teclado(orca, "Selección de idioma", "Aceptar", "Español", "Up", "English",
                           "Idiom selection. Thank you for to play my game")
        ventana("Idiom selection")
        orca.marca()
        teclas("Return")
        p = ventana("The tic tac toe (Level 3)")
        activa("The tic tac toe (Level 3)")
        orca.oye("The tic tac toe (Level 3)")
        assert len(casillas(p)) == 9, [n.name for n in casillas(p)]
        n = enfocado(p)
        assert n.name.startswith("Square 9, row 3, column 3: "), n.name
        assert n.description == "Press to play on this square", n.description
        anuncio(p, orca)

        # A game against the computer to its end, heard key by key.
        partida(p, orca)

        # The level dialog at each level.
        nivel_por_teclado(orca, "You can not win", ["Up"], "Medium", "The tic tac toe (Level 2)", p)
        nivel_por_teclado(orca, "Medium", ["Up"], "Easy", "The tic tac toe (Level 1)")
        nivel_por_teclado(orca, "Easy", ["Down", "Down"], "You can not win",
                          "The tic tac toe (Level 3)")

        # Two players: Enter with empty names is refused, in English.
        menu(orca, "1")
        d = ventana("Opponents")
        foco_es(d, pyatspi.ROLE_PUSH_BUTTON, "Ok")
        teclas("Return")
        mensaje(orca, "Information", "Please write the names", "OK")
        foco_es(d, pyatspi.ROLE_TEXT, "Name to first player:")
        teclas("Escape")
        cerrada("Opponents")

        # The language from the menu: Tab lands on English, the selected one;
        # Down switches to Spanish at once; Enter accepts.
        menu(orca, "i")
        idioma_por_teclado(orca, "Idiom selection", "Ok", "English", "Down", "Español",
                           "Selección de idioma. Gracias por jugar mi juego")
        p = ventana("El famoso juego del tirlo (Nivel 3)")
        teclas("Return")
        cerrada("Selección de idioma")
        nombres = [c.name for c in casillas(p)]
        assert len(nombres) == 9 and all(n.startswith("Casilla ") for n in nombres), nombres
        assert casillas(p)[0].description == "Pulse para jugar en esta casilla"

        # Against the computer again, in Spanish, to the end.
        orca.marca()
        menu(orca, "v")
        anuncio(p, orca)
        partida(p, orca)

        # Two players: the refusal in Spanish, with Qt's own button in Spanish
        # too; then the names, and a game to a win.
        menu(orca, "1")
        d = ventana("Oponentes")
        teclas("Return")
        mensaje(orca, "Información", "Favor de introducir los nombres de los oponentes",
                "Aceptar")
        foco_es(d, pyatspi.ROLE_TEXT, "Nombre del primer jugador:")
        subprocess.run(["xdotool", "type", "Ana"], check=True)
        teclas("shift+Tab")
        foco_es(d, pyatspi.ROLE_TEXT, "Nombre del segundo jugador:")
        subprocess.run(["xdotool", "type", "Beto"], check=True)
        orca.marca()
        teclas("Return")
        cerrada("Oponentes")
        anuncio(p, orca)
        while not enfocado(p).name.startswith("Casilla 9,"):  # from there, a win at the 8th move
            tab(p)
        partida(p, orca)
        assert re.fullmatch("¡Gana el jugador (Ana|Beto)!", panel(p)), panel(p)


        menu(orca, "s")
        assert juego.wait(timeout=10) == 0
        print("keyboard session heard through AT-SPI and Orca: fine")
    finally:
        if juego.poll() is None:
            juego.kill()


if __name__ == "__main__":
    main()
