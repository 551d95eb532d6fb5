// How the benchmark and the soak test play the 4D triangular board.
#pragma once

#include "frame/play_descriptor.h"

namespace vrask::tetra4d {

PlayDescriptor play();

}  // namespace vrask::tetra4d
