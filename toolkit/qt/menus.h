// The menu bar of a form, built from its menu entry records: entries whose
// parent is "" stand in the bar, entries whose parent is X in X's menu, in
// the order they were registered.
#pragma once

#include <string>
#include <vector>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>

#include "toolkit/qt/controls.h"

namespace vrask::qt {

class Menus : public QObject {
 public:
  Menus(QMenuBar& bar, Form& form, FireEvent fire);

  // Captions, check marks, enabled, visible and tool tips from the records.
  void sync();
  void detach() { form_ = nullptr; }

  // The action of the entry called `displayName` ("abt", "game(2)"); for
  // an entry that holds others, the action that opens its menu.
  QAction* actionOf(const std::string& displayName) const;
  // The menu that the entry `name` opens, or nullptr.
  QMenu* menuOf(const std::string& name) const;

 protected:
  // The bar shows the tip of the entry under the mouse: it names the keys of
  // an entry that stands in the bar itself.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Entry {
    Element* element;
    QPointer<QAction> action;
    QPointer<QMenu> menu;  // null for an entry that holds no others
  };

  void create(Element& e, bool holdsOthers);
  void place(const Entry& entry);

  QMenuBar& bar_;
  Form* form_;
  FireEvent fire_;
  std::vector<Entry> entries_;
};

}  // namespace vrask::qt
