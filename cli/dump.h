// The state of the current form as one JSON object, in a stable order (the
// elements in design order, the variables by name), so that two dumps of the
// same state are byte-identical.
#pragma once

#include <string>
#include <vector>

#include "toolkit/headless_host.h"
#include "toolkit/program.h"

namespace vrask::cli {

// With `names`, only those elements ("ln1", or one element "ln1(5)") and
// variables; an unknown name is a script error.
std::string dump(Program& program, const HeadlessHost& host,
                 const std::vector<std::string>& names = {});

}  // namespace vrask::cli
