#pragma once
// While a window is shown modal, nothing outside it acts, whatever drives the
// program. Qt's modality stops the keyboard, the mouse and the window
// manager's close button; an assistive technology reaches widgets and menu
// items directly (AT-SPI actions click, trigger, toggle, focus and set text),
// so every object's actions go through one guard here, and a name box
// refuses the edits, carets and selections that reach it behind one.

class QObject;

// Once, after the application object and before any window: the program's
// accessibility factories, in their order; from then on assistive
// technology acts only where the player can.
void ProtegeModalidad();

// Whether an action on the object may run now: it belongs to the modal
// window in front, or, with none open, to a window on screen.
bool Alcanzable(const QObject *objeto);
