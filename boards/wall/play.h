// How the benchmark and the soak test play the wall board.
#pragma once

#include "frame/play_descriptor.h"

namespace vrask::wall {

PlayDescriptor play();

}  // namespace vrask::wall
