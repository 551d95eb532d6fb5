// Every form of the program, for the window, the script driver and the tests.
#pragma once

#include <vector>

#include "frame/play_descriptor.h"
#include "launcher/shared_state.h"
#include "toolkit/program.h"

namespace vrask {

// A board of the suite: how to make its form, and how to play it without
// knowing it (the benchmark and the soak test loop over these).
struct Board {
  Program::Factory factory;
  PlayDescriptor play;
};

// The boards, in the order the benchmark plays them.
const std::vector<Board>& boards();
// The board whose form is `form`, or nothing.
const Board* findBoard(const std::string& form);

// Defines the shared values and registers each form of the program with
// `program` under its own name: the launcher `title`, the about box
// `AboutBox` and the boards, or of the boards only `onlyBoard` when it is
// given.
void registerSuite(Program& program, const std::string& onlyBoard = "");

}  // namespace vrask
