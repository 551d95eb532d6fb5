// The values that forms share. They live for the run of the program; nothing
// else crosses from one form to another.
#pragma once

#include <string>

namespace vrask {

struct SharedState {
  int bubbleland_start = 0;  // 1: the next square or triangular board opens in Bubbleland
  int wall_level = 1;        // 1, 2 or 3: which wall the wall board shows
  std::string product_title = "Super Vrask Plus 2014 Desktop";
};

}  // namespace vrask
