// The launcher `title`: a short splash over a star field, then the front page
// of quick-launch labels. A launch unloads it for the rest of the run.
#pragma once

#include <memory>
#include <vector>

#include "frame/star_field.h"
#include "launcher/emblem.h"
#include "toolkit/form.h"

namespace vrask {

class title : public Form {
 public:
  explicit title(Program& program);
  void Form_Load() override;

  // Quick-launch colours of `Label11`.
  static constexpr int kHover = 49152;
  static constexpr int kRest = 12582912;

 private:
  void addSplash();
  void addFrontPage();
  void addLaunchLabels();
  void Label11_Click(int i);
  void Label11_MouseMove(int i);
  void restLaunchLabels();
  void hideblurb();
  void showblurb();
  void blinkPrompt();

  std::unique_ptr<StarField> starField_;
  std::unique_ptr<Emblem> emblem_;
  ElementArray* labels_ = nullptr;   // `Label11`
  std::vector<Element*> frontPage_;  // shown by `hideblurb`, besides the labels
  Element* splashTimer_ = nullptr;   // `Timer2`
  Element* emblemTimer_ = nullptr;   // `tmrAni`
};

}  // namespace vrask
