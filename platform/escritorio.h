#pragma once
// How the program meets the desktop session: which window system it draws
// on, and the name its windows give the session so that docks and window
// switchers tie them to the program's desktop entry and icon.

// Before the application object: unless QT_QPA_PLATFORM chooses, the
// desktop's X server where it takes the connection (XWayland on a Wayland
// session: its window manager draws the frames as designed, where Qt's own
// would cut titles short and show buttons the windows do not have), else the
// Wayland compositor. Where none takes the program, it ends with one line on
// standard error saying why, and status 1.
void EligeSistemaDeVentanas();

// After it: every window names the desktop entry and carries its icon.
void IdentificaPrograma();
