#include "toolkit/program.h"

#include <algorithm>
#include <stdexcept>

namespace vrask {

// Counts handlers running, so that queued navigation waits for the outermost.
struct Program::Depth {
  explicit Depth(Program& p) : program(p) { ++program.depth_; }
  ~Depth() { --program.depth_; }
  Depth(const Depth&) = delete;
  Depth& operator=(const Depth&) = delete;
  Program& program;
};

Program::~Program() {
  // Forms go before the listener and the shared values they might still name.
  listener_ = nullptr;
  stack_.clear();
}

void Program::registerForm(const std::string& name, Factory factory) {
  factories_[name] = std::move(factory);
}

void Program::loadOnTop(const std::string& name) {
  auto it = factories_.find(name);
  if (it == factories_.end()) throw std::invalid_argument("no form named " + name);
  for (const auto& form : stack_) {
    if (form->name() == name) return;  // at most one instance of a form is alive
  }
  stack_.push_back(it->second(*this));
  Form& form = *stack_.back();
  {
    Depth depth(*this);
    form.Form_Load();
  }
  if (listener_ != nullptr && !ended_) listener_->formShown(form);
}

void Program::unloadAll() {
  while (!stack_.empty()) {
    if (listener_ != nullptr) listener_->formUnloading(*stack_.back());
    stack_.pop_back();
  }
}

void Program::open(const std::string& name) {
  if (!knowsForm(name)) throw std::invalid_argument("no form named " + name);
  pendingNavigate_.reset();
  pendingShow_.clear();
  pendingUnload_.clear();
  unloadAll();
  loadOnTop(name);
  settle();
}

void Program::navigate(const std::string& name) {
  pendingNavigate_ = name;
  settle();
}

void Program::showOver(const std::string& name) {
  pendingShow_.push_back(name);
  settle();
}

void Program::unload(Form& form) {
  pendingUnload_.push_back(&form);
  settle();
}

void Program::settle() {
  if (depth_ > 0 || ended_) return;
  // Each step may queue more (a form's load can navigate), so loop to rest.
  while (pendingNavigate_ || !pendingShow_.empty() || !pendingUnload_.empty()) {
    if (pendingNavigate_) {
      std::string target = *pendingNavigate_;
      pendingNavigate_.reset();
      pendingShow_.clear();
      pendingUnload_.clear();
      unloadAll();
      loadOnTop(target);
      continue;
    }
    if (!pendingUnload_.empty()) {
      Form* form = pendingUnload_.front();
      pendingUnload_.erase(pendingUnload_.begin());
      auto it = std::find_if(stack_.begin(), stack_.end(),
                             [form](const auto& f) { return f.get() == form; });
      if (it != stack_.end()) {
        if (listener_ != nullptr) listener_->formUnloading(**it);
        stack_.erase(it);
      }
      continue;
    }
    std::string target = pendingShow_.front();
    pendingShow_.erase(pendingShow_.begin());
    loadOnTop(target);
  }
}

Program::Result Program::userEvent(Form& form, const Element& e, const std::string& handler,
                                   int keyCode) {
  if (auto why = whyRefused(form, e)) return {Outcome::Ignored, *why};
  bool ran = false;
  {
    Depth depth(*this);
    ran = form.invoke(handler, e.index, keyCode);
  }
  settle();
  return {ran ? Outcome::Done : Outcome::NoSuchHandler, {}};
}

Program::Result Program::rowEvent(Form& form, Element& list, int row, const std::string& handler) {
  if (auto why = whyRefused(form, list)) return {Outcome::Ignored, *why};
  if (row < 0 || row >= list.ListCount()) {
    std::string rows =
        list.ListCount() == 0 ? "it is empty" : "rows 0.." + std::to_string(list.ListCount() - 1);
    return {Outcome::Ignored,
            list.displayName() + " has no row " + std::to_string(row) + " (" + rows + ")"};
  }
  list.ListIndex = row;
  return userEvent(form, list, handler);
}

std::optional<std::string> Program::whyRefused(const Form& form, const Element& e) const {
  if (ended_) return "the program has ended";
  if (inPlainWait_) return "a wait is in progress";
  return form.whyUnreachable(e);
}

void Program::timerTick(Form& form, Element& timer) {
  if (ended_ || inPlainWait_ || !timer.Enabled) return;
  {
    Depth depth(*this);
    form.invoke(timer.name + "_Timer", timer.index);
  }
  settle();
}

void Program::end() {
  if (ended_) return;
  ended_ = true;
  host_.programEnded();
}

}  // namespace vrask
