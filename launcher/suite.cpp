#include "launcher/suite.h"

#include "boards/flatland/Form1large.h"
#include "frame/about_box.h"
#include "launcher/title.h"
#include "toolkit/program.h"

namespace vrask {

namespace {

template <typename F>
void registerAs(Program& program, const char* name) {
  program.registerForm(name, [](Program& p) { return std::make_unique<F>(p); });
}

}  // namespace

void registerSuite(Program& program) {
  registerAs<title>(program, "title");
  registerAs<AboutBox>(program, "AboutBox");
  registerAs<Form1large>(program, "Form1large");
  // Each board is registered here once its form is built; a launcher label or
  // "Other Games" entry of a board not registered shows "Not yet available".
}

}  // namespace vrask
