#include "toolkit/qt/controls.h"

#include <utility>

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTextOption>

#include "toolkit/form.h"
#include "toolkit/qt/element_painter.h"

namespace vrask::qt {

// A ring round the control the player tabbed to, over everything else: the
// style's own mark is a faint line that a player easily misses.
class FocusRing : public QWidget {
 public:
  static constexpr int kWidth = 3;

  explicit FocusRing(QWidget& surface) : QWidget(&surface) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
  }

  void around(const QWidget& control) {
    setGeometry(control.geometry().adjusted(-kWidth, -kWidth, kWidth, kWidth));
    raise();
    show();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), kWidth));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 4, 4);
  }
};

namespace {

// Rows of a list box hold TABs between their columns ("Round 1 -Blue\t5\t3"):
// the columns stand at tab stops eight average characters apart.
class TabbedRows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    QString text = row.text;
    row.text.clear();
    const QWidget* view = row.widget;
    QStyle* style = view != nullptr ? view->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, view);

    QTextOption layout(Qt::AlignLeft | Qt::AlignVCenter);
    layout.setWrapMode(QTextOption::NoWrap);
    layout.setTabStopDistance(8.0 * row.fontMetrics.averageCharWidth());
    bool selected = (row.state & QStyle::State_Selected) != 0;
    painter->save();
    painter->setFont(row.font);
    painter->setPen(row.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(style->subElementRect(QStyle::SE_ItemViewItemText, &row, view), text, layout);
    painter->restore();
  }
};

bool byKeyboard(const QFocusEvent& event) {
  return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason;
}

bool userMovedFocus(const QFocusEvent& event) {
  Qt::FocusReason reason = event.reason();
  return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
         reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

std::vector<std::string> rowsOf(const QListWidget& list) {
  std::vector<std::string> rows;
  rows.reserve(static_cast<size_t>(list.count()));
  for (int i = 0; i < list.count(); ++i) rows.push_back(list.item(i)->text().toStdString());
  return rows;
}

template <typename Value, typename Setter>
void setIfChanged(const Value& now, const Value& wanted, Setter set) {
  if (now != wanted) set(wanted);
}

}  // namespace

int keyCodeOf(int qtKey) {
  // Digits and letters have the same codes in both.
  if ((qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) || (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z)) {
    return qtKey;
  }
  switch (qtKey) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return key::Enter;
    case Qt::Key_Left:
      return key::Left;
    case Qt::Key_Up:
      return 38;
    case Qt::Key_Right:
      return key::Right;
    case Qt::Key_Down:
      return 40;
    case Qt::Key_Backspace:
      return 8;
    case Qt::Key_Tab:
      return 9;
    case Qt::Key_Escape:
      return 27;
    case Qt::Key_Space:
      return 32;
    case Qt::Key_Delete:
      return 46;
    default:
      return -1;
  }
}

Controls::Controls(QWidget& surface, Form& form, FireEvent fire, PickRow pick)
    : QObject(&surface),
      surface_(surface),
      form_(&form),
      fire_(std::move(fire)),
      pick_(std::move(pick)),
      ring_(new FocusRing(surface)) {
  for (ElementArray* array : form.designOrder()) {
    for (Element& e : *array) {
      if (e.kind == Kind::Button) addButton(e);
      if (e.kind == Kind::TextBox) addTextBox(e);
      if (e.kind == Kind::ListBox) addListBox(e);
    }
  }
}

void Controls::watch(Element& e, QWidget* widget) {
  widget->installEventFilter(this);
  widget->hide();
  controls_.push_back({&e, widget});
}

void Controls::addButton(Element& e) {
  auto* button = new QPushButton(&surface_);
  // A click leaves the focus where it was: a player who types a move and
  // clicks the keypad's digits can still press Enter in the text box. The
  // Tab key still reaches the buttons.
  button->setFocusPolicy(Qt::TabFocus);
  button->setAutoDefault(true);
  QObject::connect(button, &QPushButton::clicked, this, [this, &e] {
    if (form_ != nullptr) fire_(e, e.name + "_Click", 0);
  });
  watch(e, button);
}

void Controls::addTextBox(Element& e) {
  auto* box = new QLineEdit(&surface_);
  QObject::connect(box, &QLineEdit::textEdited, this, [this, &e](const QString& text) {
    if (form_ == nullptr) return;
    e.Text = text.toStdString();
    if (form_->hasHandler(e.name + "_Change")) fire_(e, e.name + "_Change", 0);
  });
  watch(e, box);
}

void Controls::addListBox(Element& e) {
  auto* list = new QListWidget(&surface_);
  list->setItemDelegate(new TabbedRows(list));
  list->setFocusPolicy(Qt::TabFocus);
  // A person's double click comes as a click, then the double click.
  QObject::connect(list, &QListWidget::itemClicked, this, [this, &e, list](QListWidgetItem* item) {
    if (form_ != nullptr) pick_(e, list->row(item), e.name + "_Click");
  });
  QObject::connect(list, &QListWidget::itemDoubleClicked, this,
                   [this, &e, list](QListWidgetItem* item) {
                     if (form_ != nullptr) pick_(e, list->row(item), e.name + "_DblClick");
                   });
  watch(e, list);
}

void Controls::sync(const Placement& placement, const ViewScale& scale) {
  if (form_ == nullptr) return;
  for (const Control& control : controls_) {
    if (control.widget) syncOne(control, placement, scale);
  }
  syncFocus();
  // The ring follows its control when the window changes size.
  QWidget* focused = surface_.window()->focusWidget();
  if (ring_->isVisible() && focused != nullptr && focused->isVisible()) {
    ring_->around(*focused);
  } else {
    ring_->hide();
  }
}

void Controls::syncOne(const Control& control, const Placement& placement, const ViewScale& scale) {
  Element& e = *control.element;
  QWidget& widget = *control.widget;
  bool shown = placement.shown(e) && scale.factor() > 0;
  if (!shown) {
    letGoOfFocus(widget);
    widget.hide();
    return;
  }
  widget.setGeometry(scale.toPixels(placement.rectOf(e)).toRect());
  setIfChanged(widget.font(),
               scaledFont(surface_.font(), e.FontSize, e.FontBold, scale, surface_.logicalDpiY()),
               [&](const QFont& font) { widget.setFont(font); });
  bool enabled = !form_->whyUnreachable(e).has_value();
  if (!enabled) letGoOfFocus(widget);
  setIfChanged(widget.isEnabled(), enabled, [&](bool on) { widget.setEnabled(on); });
  setIfChanged(widget.toolTip(), QString::fromStdString(e.ToolTipText),
               [&](const QString& tip) { widget.setToolTip(tip); });
  if (auto* button = qobject_cast<QPushButton*>(&widget)) {
    setIfChanged(button->text(), QString::fromStdString(e.Caption),
                 [&](const QString& caption) { button->setText(caption); });
    setIfChanged(button->isDefault(), e.Default, [&](bool on) { button->setDefault(on); });
  } else if (auto* box = qobject_cast<QLineEdit*>(&widget)) {
    setIfChanged(box->text(), QString::fromStdString(e.Text),
                 [&](const QString& text) { box->setText(text); });
  } else if (auto* list = qobject_cast<QListWidget*>(&widget)) {
    std::vector<std::string> rows = rowsOf(*list);
    if (rows != e.List) {
      list->clear();
      for (const std::string& row : e.List) list->addItem(QString::fromStdString(row));
      // The newest rows are the ones a player looks for: the round just played.
      if (e.List.size() > rows.size()) list->scrollToBottom();
    }
    if (list->currentRow() != e.ListIndex) list->setCurrentRow(e.ListIndex);
  }
  widget.show();
}

// The window's focus follows the form's: on the control that holds it, or
// on none.
void Controls::syncFocus() {
  QWidget* holder = surface_.window()->focusWidget();
  QWidget* wanted = widgetOf(form_->focused());
  if (holder == wanted) return;
  if (wanted == nullptr) {
    if (holder != nullptr && controlOf(holder) != nullptr) holder->clearFocus();
    return;
  }
  // A widget that is not shown yet cannot take the focus; it gets it once
  // it shows.
  if (wanted->isVisibleTo(&surface_)) wanted->setFocus(Qt::OtherFocusReason);
}

void Controls::letGoOfFocus(QWidget& widget) {
  if (widget.window()->focusWidget() == &widget) widget.clearFocus();
}

QWidget* Controls::widgetOf(const std::string& displayName) const {
  for (const Control& control : controls_) {
    if (control.element->displayName() == displayName) return control.widget;
  }
  return nullptr;
}

const Controls::Control* Controls::controlOf(const QObject* widget) const {
  for (const Control& control : controls_) {
    if (control.widget == widget) return &control;
  }
  return nullptr;
}

// Enter with no KeyDown handler goes on to the window, which presses the
// default button.
bool Controls::keyDown(Element& e, int qtKey) {
  int code = keyCodeOf(qtKey);
  if (code < 0 || !form_->hasHandler(e.name + "_KeyDown")) return false;
  fire_(e, e.name + "_KeyDown", code);
  return code == key::Enter;
}

bool Controls::eventFilter(QObject* watched, QEvent* event) {
  const Control* control = controlOf(watched);
  if (form_ == nullptr || control == nullptr) return false;
  Element& e = *control->element;
  if (event->type() == QEvent::KeyPress && e.kind == Kind::TextBox) {
    return keyDown(e, static_cast<QKeyEvent*>(event)->key());
  }
  if (event->type() == QEvent::FocusOut) ring_->hide();
  if (event->type() == QEvent::FocusIn && byKeyboard(*static_cast<QFocusEvent*>(event))) {
    ring_->around(*control->widget);
  }
  if (event->type() == QEvent::FocusIn && userMovedFocus(*static_cast<QFocusEvent*>(event))) {
    form_->focus = e.displayName();
    if (form_->hasHandler(e.name + "_GotFocus")) fire_(e, e.name + "_GotFocus", 0);
  }
  return false;
}

}  // namespace vrask::qt
