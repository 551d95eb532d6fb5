#include "toolkit/form.h"

#include <stdexcept>

#include "toolkit/host.h"
#include "toolkit/program.h"

namespace vrask {

Form::Form(Program& program, std::string name) : program_(program), name_(std::move(name)) {}

Form::~Form() = default;

void Form::put(const std::string& name, std::unique_ptr<ElementArray> array) {
  if (elements_.count(name) != 0) throw std::logic_error("element registered twice: " + name);
  order_.push_back(array.get());
  elements_[name] = std::move(array);
}

Element& Form::add(const std::string& name, Kind kind) {
  put(name, std::make_unique<ElementArray>(name, kind, 0, 0, false));
  return (*elements_[name])[0];
}

ElementArray& Form::addArray(const std::string& name, Kind kind, int lo, int hi) {
  put(name, std::make_unique<ElementArray>(name, kind, lo, hi, true));
  return *elements_[name];
}

Element& Form::addMenu(const std::string& name, const std::string& parent,
                       const std::string& caption) {
  Element& e = add(name, Kind::MenuItem);
  e.parent = parent;
  e.Caption = caption;
  return e;
}

ElementArray& Form::addMenuArray(const std::string& name, const std::string& parent, int lo,
                                 int hi) {
  ElementArray& a = addArray(name, Kind::MenuItem, lo, hi);
  for (Element& e : a) e.parent = parent;
  return a;
}

ElementArray* Form::findArray(const std::string& name) {
  auto it = elements_.find(name);
  return it == elements_.end() ? nullptr : it->second.get();
}

void Form::handle(const std::string& handler, std::function<void()> fn) {
  handlers_[handler] = [fn = std::move(fn)](int, int) { fn(); };
}

void Form::handleIndexed(const std::string& handler, std::function<void(int)> fn) {
  handlers_[handler] = [fn = std::move(fn)](int index, int) { fn(index); };
}

void Form::handleKey(const std::string& handler, std::function<void(int, int)> fn) {
  handlers_[handler] = std::move(fn);
}

bool Form::invoke(const std::string& handler, int index, int keyCode) {
  auto it = handlers_.find(handler);
  if (it == handlers_.end()) return false;
  // A copy: the handler may replace itself while it runs.
  auto fn = it->second;
  fn(index, keyCode);
  return true;
}

void Form::var(const std::string& name, std::function<Value()> get) {
  vars_[name] = Variable{{}, [get = std::move(get)](const std::vector<int>&) { return get(); }};
}

void Form::var(const std::string& name, int& v) {
  var(name, [&v] { return num(v); });
}

void Form::var(const std::string& name, double& v) {
  var(name, [&v] { return num(v); });
}

void Form::var(const std::string& name, std::string& v) {
  var(name, [&v] { return Value{v}; });
}

void Form::varArray(const std::string& name, int lo, int hi, std::function<Value(int)> get) {
  vars_[name] = Variable{{{lo, hi}},
                         [get = std::move(get)](const std::vector<int>& ix) { return get(ix[0]); }};
}

void Form::varTable(const std::string& name, std::pair<int, int> rows, std::pair<int, int> cols,
                    std::function<Value(int, int)> get) {
  vars_[name] = Variable{{rows, cols}, [get = std::move(get)](const std::vector<int>& ix) {
                           return get(ix[0], ix[1]);
                         }};
}

std::optional<std::string> Form::whyUnreachable(const Element& e) const {
  // "is hidden", or "is inside Picture1, which is hidden" up the holders.
  auto reason = [this](const Element& el, auto& self) -> std::optional<std::string> {
    if (!el.Visible) return "is hidden";
    if (!el.Enabled) return "is disabled";
    // A menu entry is reachable only through its menus; an element in a panel
    // only while the panel shows.
    const std::string& up = el.kind == Kind::MenuItem ? el.parent : el.container;
    if (up.empty()) return std::nullopt;
    auto it = elements_.find(up);
    if (it == elements_.end()) return std::nullopt;
    const Element& holder = (*it->second)[it->second->lo()];
    if (auto why = self(holder, self)) {
      return "is inside " + holder.displayName() + ", which " + *why;
    }
    return std::nullopt;
  };
  if (auto why = reason(e, reason)) return e.displayName() + " " + *why;
  return std::nullopt;
}

std::string Form::focused() const {
  size_t open = focus.find('(');
  auto it = elements_.find(focus.substr(0, open));
  if (it == elements_.end()) return "";
  const ElementArray& array = *it->second;
  int index = array.lo();
  if (open != std::string::npos) index = std::stoi(focus.substr(open + 1));
  if (!array.contains(index) || whyUnreachable(array[index])) return "";
  return focus;
}

Host& Form::host() {
  return program_.host();
}
SharedValues& Form::shared() {
  return program_.shared();
}

void Form::MsgBox(const std::string& text, const std::string& title) {
  if (!program_.ended()) host().msgbox(text, title);
}

void Form::pause(double seconds, bool pump) {
  if (program_.ended()) return;
  if (pump) {
    host().wait(seconds, true);
    return;
  }
  program_.setInPlainWait(true);
  host().wait(seconds, false);
  program_.setInPlainWait(false);
}

void Form::Refresh() {
  if (!program_.ended()) host().refresh(*this);
}

double Form::Rnd() {
  return host().rnd();
}

int Form::pick(int n) {
  return static_cast<int>(n * Rnd() + 1);
}

void Form::goTo(const std::string& target) {
  program_.navigate(target);
}

void Form::Unload() {
  program_.unload(*this);
}

void Form::End() {
  program_.end();
}

}  // namespace vrask
