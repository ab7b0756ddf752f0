#!/usr/bin/python3
"""Inside kwin.sh: the game's level dialog minimised by KWin, then the main
window restored as from the task manager; after each, every window as KWin
has it (caption, minimised or not), in KWin's log."""
import os
import subprocess
import sys
import threading
import time

import pyatspi

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from teclado import espera, nodos, ventana  # noqa: E402


def kwin(nombre, codigo):
    """Runs a KWin script."""
    archivo = os.path.join(os.environ["XDG_RUNTIME_DIR"], nombre + ".js")
    with open(archivo, "w", encoding="utf-8") as f:
        f.write(codigo)
    dbus = ["dbus-send", "--session", "--print-reply", "--dest=org.kde.KWin", "/Scripting"]
    subprocess.run(dbus + ["org.kde.kwin.Scripting.loadScript", "string:" + archivo,
                           "string:" + nombre], check=True, stdout=subprocess.DEVNULL)
    subprocess.run(dbus + ["org.kde.kwin.Scripting.start"], check=True, stdout=subprocess.DEVNULL)


def pulsa(nodo):
    """An AT-SPI action that may open a modal window and not answer until it closes."""
    threading.Thread(target=lambda: nodo.queryAction().doAction(0), daemon=True).start()


# KWin 6 lists its windows with windowList, KWin 5 with clientList.
VENTANAS = "(workspace.windowList ? workspace.windowList() : workspace.clientList())"

juego = subprocess.Popen([os.environ["PROGRAMA"]],
                         env=dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1"))
try:
    inicio = ventana("Selección de idioma")
    pulsa(next(n for n in nodos(inicio) if n.name == "Aceptar"))
    principal = ventana("El famoso juego del tirlo (Nivel 3)")
    pulsa(next(n for n in nodos(principal) if n.getRole() == pyatspi.ROLE_MENU_ITEM
               and n.name == "Nivel"))
    ventana("Nivel")
    time.sleep(1)
    kwin("minimiza", 'for (const c of ' + VENTANAS + ') '
                     'if (c.caption === "Nivel") c.minimized = true;')
    time.sleep(1)
    informe = ('for (const c of ' + VENTANAS + ') '
               'print(c.caption, c.minimized ? "minimised" : "on screen");')
    kwin("informa", informe)
    # The player brings the game back from the task manager.
    kwin("restaura", 'for (const c of ' + VENTANAS + ') '
                     'if (c.caption.startsWith("El famoso")) c.minimized = false;')
    time.sleep(1)
    kwin("informa2", informe)
    time.sleep(1)
finally:
    juego.kill()
