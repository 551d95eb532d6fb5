// Colours of the element records (0xBBGGRR, negative for the system's own)
// as the window shows them.
#pragma once

#include <QColor>
#include <QPalette>

namespace vrask::qt {

// `value` as a colour: red in the low byte, blue in the high byte; a system
// colour (button face, window text, window background) from `palette`.
QColor toQColor(int value, const QPalette& palette);

}  // namespace vrask::qt
