// The about box, shown over a board from its About entries.
#pragma once

#include <memory>

#include "frame/star_field.h"
#include "toolkit/form.h"

namespace vrask {

class AboutBox : public Form {
 public:
  explicit AboutBox(Program& program);
  // Caption "About " + the product title, the title and version labels, the
  // star field `stars` on `Timer1`, and `Cmd_OK`, which unloads the box.
  void Form_Load() override;

 private:
  std::unique_ptr<StarField> starField_;
};

}  // namespace vrask
