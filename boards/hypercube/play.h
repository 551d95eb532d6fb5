// How the benchmark and the soak test play the HyperCube board.
#pragma once

#include "frame/play_descriptor.h"

namespace vrask::hypercube {

PlayDescriptor play();

}  // namespace vrask::hypercube
