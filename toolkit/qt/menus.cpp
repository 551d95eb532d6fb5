#include "toolkit/qt/menus.h"

#include <set>

#include <QHelpEvent>
#include <QKeySequence>
#include <QToolTip>

#include "toolkit/form.h"

namespace vrask::qt {

namespace {

// A caption of a single dash is a separator line.
constexpr const char* kSeparator = "-";

template <typename Value, typename Setter>
void setIfChanged(const Value& now, const Value& wanted, Setter set) {
  if (now != wanted) set(wanted);
}

}  // namespace

Menus::Menus(QMenuBar& bar, Form& form, FireEvent fire)
    : bar_(bar), form_(&form), fire_(std::move(fire)) {
  std::set<std::string> parents;
  for (ElementArray* array : form.designOrder()) {
    if (array->kind() != Kind::MenuItem) continue;
    for (Element& e : *array) parents.insert(e.parent);
  }
  // All menus first, so that an entry finds its menu whatever the order.
  for (ElementArray* array : form.designOrder()) {
    if (array->kind() != Kind::MenuItem) continue;
    for (Element& e : *array) {
      create(e, parents.count(e.name) != 0 && menuOf(e.name) == nullptr);
    }
  }
  for (const Entry& entry : entries_) place(entry);
  bar_.installEventFilter(this);
  sync();
}

bool Menus::eventFilter(QObject* watched, QEvent* event) {
  if (watched != &bar_ || event->type() != QEvent::ToolTip) return false;
  auto* help = static_cast<QHelpEvent*>(event);
  QAction* action = bar_.actionAt(help->pos());
  if (action == nullptr || action->menu() != nullptr) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(help->globalPos(), action->toolTip(), &bar_);
  }
  return true;
}

void Menus::create(Element& e, bool holdsOthers) {
  Entry entry{&e, nullptr, nullptr};
  if (holdsOthers) {
    entry.menu = new QMenu(&bar_);
    entry.menu->setToolTipsVisible(true);
    entry.action = entry.menu->menuAction();
    // A menu that has its own Click handler hears it as it opens.
    QObject::connect(entry.menu, &QMenu::aboutToShow, &bar_, [this, &e] {
      if (form_ != nullptr && form_->hasHandler(e.name + "_Click")) fire_(e, e.name + "_Click", 0);
    });
  } else {
    entry.action = new QAction(&bar_);
    QObject::connect(entry.action, &QAction::triggered, &bar_, [this, &e] {
      if (form_ != nullptr) fire_(e, e.name + "_Click", 0);
    });
  }
  entries_.push_back(entry);
}

void Menus::place(const Entry& entry) {
  QMenu* holder = entry.element->parent.empty() ? nullptr : menuOf(entry.element->parent);
  if (holder != nullptr) {
    holder->addAction(entry.action);
  } else {
    // An entry of an unknown menu stands in the bar rather than nowhere.
    bar_.addAction(entry.action);
  }
}

void Menus::sync() {
  if (form_ == nullptr) return;
  for (const Entry& entry : entries_) {
    const Element& e = *entry.element;
    QAction& action = *entry.action;
    bool separator = e.Caption == kSeparator;
    setIfChanged(action.isSeparator(), separator, [&](bool on) { action.setSeparator(on); });
    if (!separator) {
      setIfChanged(action.text(), QString::fromStdString(e.Caption),
                   [&](const QString& text) { action.setText(text); });
    }
    // The mark shows exactly when the entry is checked; an unchecked entry
    // looks like any other.
    if (entry.menu == nullptr) {
      setIfChanged(action.isCheckable(), e.Checked, [&](bool on) { action.setCheckable(on); });
      setIfChanged(action.isChecked(), e.Checked, [&](bool on) { action.setChecked(on); });
    }
    QKeySequence keys = QKeySequence::fromString(QString::fromStdString(e.Shortcut));
    setIfChanged(action.shortcut(), keys, [&](const QKeySequence& k) { action.setShortcut(k); });
    setIfChanged(action.isEnabled(), e.Enabled, [&](bool on) { action.setEnabled(on); });
    setIfChanged(action.isVisible(), e.Visible, [&](bool on) { action.setVisible(on); });
    // Without a tip of its own an action shows its text as its tip. An entry
    // in the bar shows no shortcut beside it: its tip names the keys.
    QString tip = e.ToolTipText.empty() ? action.text() : QString::fromStdString(e.ToolTipText);
    if (!keys.isEmpty() && e.parent.empty()) {
      tip += QStringLiteral(" (%1)").arg(keys.toString(QKeySequence::NativeText));
    }
    setIfChanged(action.toolTip(), tip, [&](const QString& t) { action.setToolTip(t); });
  }
}

QAction* Menus::actionOf(const std::string& displayName) const {
  for (const Entry& entry : entries_) {
    if (entry.element->displayName() == displayName) return entry.action;
  }
  return nullptr;
}

QMenu* Menus::menuOf(const std::string& name) const {
  for (const Entry& entry : entries_) {
    if (entry.element->name == name && entry.menu != nullptr) return entry.menu;
  }
  return nullptr;
}

}  // namespace vrask::qt
