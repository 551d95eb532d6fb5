// How the benchmark and the soak test play the cube board.
#pragma once

#include "frame/play_descriptor.h"

namespace vrask::cube {

PlayDescriptor play();

}  // namespace vrask::cube
