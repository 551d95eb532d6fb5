// The values that forms share. They live for the run of the program; nothing
// else crosses from one form to another. The program keeps them by name.
#pragma once

#include "toolkit/shared_values.h"

namespace vrask::shared {

// 1: the next square or triangular board opens in Bubbleland.
inline constexpr const char* kBubblelandStart = "bubbleland_start";
// 1, 2 or 3: which wall the wall board shows.
inline constexpr const char* kWallLevel = "wall_level";
// The window and about title.
inline constexpr const char* kProductTitle = "product_title";

inline void defineSharedValues(SharedValues& values) {
  values.define(kBubblelandStart, num(0));
  values.define(kWallLevel, num(1));
  values.define(kProductTitle, Value{std::string("Super Vrask Plus 2014 Desktop")});
}

}  // namespace vrask::shared
