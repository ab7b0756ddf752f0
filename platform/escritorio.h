#pragma once
// How the program meets the desktop session: which window system it draws
// on, and the name its windows give the session so that docks and window
// switchers tie them to the program's desktop entry and icon.

// Before the application object: on a Wayland session whose compositor does
// not draw window frames, Qt would draw its own, which cut the titles short
// and show buttons the windows do not have; the desktop's X server
// (XWayland), when there is one, frames them as designed. A platform the
// user chose with QT_QPA_PLATFORM is left as it is.
void EligeSistemaDeVentanas();

// After it: every window names the desktop entry, as the Wayland app id and
// as the desktop-file hints of X11 windows.
void IdentificaPrograma();
