#include "frame/other_games.h"

#include <vector>

#include "launcher/shared_state.h"
#include "toolkit/form.h"
#include "toolkit/program.h"

namespace vrask {

namespace {

struct Entry {
  int index;
  const char* caption;
  const char* target;
  int wallLevel;  // 0: the entry writes no shared value
};

struct Group {
  int lo, hi;
  std::vector<Entry> entries;
};

const Group kTwoD{2,
                  3,
                  {{2, "2D - Vrask Quennel in Flatland and Bubbleland   (Triangular)", "Triang", 0},
                   {3, "2D - Super Vrask Plus in Flatland and Bubbleland", "Form1large", 0}}};

const Group kThreeD{7,
                    11,
                    {{7, "3D - Zorvex Ultra Squared and Ultra Vrasked", "zorvex", 0},
                     {8, "3D - Vrask the Wall", "vraskthewall", 1},
                     {9, "3D - Vrask a Bigger Wall", "vraskthewall", 2},
                     {10, "3D - Vrask the Great Wall", "vraskthewall", 3},
                     {11, "3D - Vrask Quennel   (Triangular)", "Quennel", 0}}};

const Group kFourD{12,
                   13,
                   {{12, "4D - Vrask Quennel in 4D   (Triangular)", "form5d", 0},
                    {13, "4D - HyperCube Vrask", "form5d2", 0}}};

bool isThisBoard(Form& form, const Entry& entry) {
  if (form.name() != entry.target) return false;
  return entry.wallLevel == 0 || entry.wallLevel == form.shared().number(shared::kWallLevel);
}

void addGroup(Form& form, const std::string& name, const Group& group) {
  ElementArray& items = form.addMenuArray(name, "opts", group.lo, group.hi);
  for (const Entry& entry : group.entries) {
    Element& item = items[entry.index];
    item.Caption = entry.caption;
    if (isThisBoard(form, entry)) item.Caption += "  (THIS VERSION!)";
    if (!form.program().knowsForm(entry.target)) {
      item.Enabled = false;
      item.ToolTipText = "Not yet available";
    }
  }
  form.handleIndexed(name + "_Click", [&form, group](int index) {
    for (const Entry& entry : group.entries) {
      if (entry.index != index) continue;
      if (entry.wallLevel != 0) form.shared().set(shared::kWallLevel, num(entry.wallLevel));
      form.goTo(entry.target);
    }
  });
}

}  // namespace

OtherGames::OtherGames(Form& form, const OtherGamesNames& names)
    : menu_(&form.addMenu("opts", "", "Other Games")) {
  addGroup(form, names.twoD, kTwoD);
  addGroup(form, names.threeD, kThreeD);
  addGroup(form, names.fourD, kFourD);
}

}  // namespace vrask
