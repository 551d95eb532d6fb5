// How the benchmark and the soak test play the square board.
#pragma once

#include "frame/play_descriptor.h"

namespace vrask::flatland {

PlayDescriptor play();

}  // namespace vrask::flatland
