// How the benchmark and the soak test play the triangular board.
#pragma once

#include "frame/play_descriptor.h"

namespace vrask::triangular {

PlayDescriptor play();

}  // namespace vrask::triangular
