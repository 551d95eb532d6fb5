// Every form of the program, for the window, the script driver and the tests.
#pragma once

namespace vrask {

class Program;

// Registers each form of the program with `program` under its own name: the
// launcher `title`, the about box `AboutBox` and the boards.
void registerSuite(Program& program);

}  // namespace vrask
