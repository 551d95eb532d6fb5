#include "toolkit/qt/colors.h"

#include "toolkit/element.h"

namespace vrask::qt {

QColor toQColor(int value, const QPalette& palette) {
  switch (value) {
    case color::ButtonFace:
      return palette.color(QPalette::Button);
    case color::WindowText:
      return palette.color(QPalette::WindowText);
    case color::WindowBackground:
      return palette.color(QPalette::Base);
    default:
      break;
  }
  // Any other system colour has no counterpart here; the window's own colour
  // is the least surprising stand-in.
  if (value < 0) return palette.color(QPalette::Window);
  return QColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF);
}

}  // namespace vrask::qt
