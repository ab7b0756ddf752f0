#pragma once
// The program's icon. Its drawing (icons/supertirlo.svg) is pixel art on a
// 32x32 grid in the 16-colour palette: rectangles only, drawn here at any size.

#include <QIcon>
#include <QImage>

// The drawing at `lado` pixels square: whole multiples of 32 stay crisp,
// other sizes are scaled smoothly from the nearest crisp one above.
QImage DibujaIcono(int lado);

// The window icon of every window: the 32x32 picture (and its crisp double
// for high-density screens).
QIcon IconoPrograma();
