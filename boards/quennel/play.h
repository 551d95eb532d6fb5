// How the benchmark and the soak test play the tetrahedron board.
#pragma once

#include "frame/play_descriptor.h"

namespace vrask::quennel {

PlayDescriptor play();

}  // namespace vrask::quennel
