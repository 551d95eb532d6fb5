// The run of the program: the forms it knows, the ones alive, the values they
// share, and the one way events reach them. Navigation is queued and carried
// out when no handler runs, so a form is never destroyed under its own code.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/form.h"
#include "toolkit/host.h"
#include "toolkit/shared_values.h"

namespace vrask {

class Program {
 public:
  using Factory = std::function<std::unique_ptr<Form>(Program&)>;

  // Told when a form is shown or about to be destroyed (the window follows).
  struct Listener {
    virtual ~Listener() = default;
    virtual void formShown(Form& form) = 0;
    virtual void formUnloading(Form& form) = 0;
  };

  explicit Program(Host& host) : host_(host) {}
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  void registerForm(const std::string& name, Factory factory);
  bool knowsForm(const std::string& name) const { return factories_.count(name) != 0; }
  void setListener(Listener* listener) { listener_ = listener; }

  // Load `name` now, in place of every form alive, and show it.
  void open(const std::string& name);
  // Queue: unload every form alive, load `name`, show it.
  void navigate(const std::string& name);
  // Queue: show `name` over the current form (a dialog such as the about box).
  void showOver(const std::string& name);
  // Queue: unload `form`.
  void unload(Form& form);

  // The form events go to: the last one loaded and shown.
  Form* current() { return stack_.empty() ? nullptr : stack_.back().get(); }
  const std::vector<std::unique_ptr<Form>>& alive() const { return stack_; }

  enum class Outcome { Done, Ignored, NoSuchHandler };
  struct Result {
    Outcome outcome = Outcome::Done;
    std::string why;  // for Ignored
  };
  // An event from a person: `handler` of element `e` on `form`. Refused when
  // the person could not reach the element now. Queued navigation is carried
  // out when the outermost handler returns.
  Result userEvent(Form& form, const Element& e, const std::string& handler, int keyCode = 0);
  // A person clicks (or double-clicks, with the handler `NAME_DblClick`) row
  // `row` of the list box `list`: the row becomes the list's ListIndex, then
  // the handler runs. Refused as userEvent refuses, and when the list has no
  // such row.
  Result rowEvent(Form& form, Element& list, int row, const std::string& handler);
  // Why userEvent would refuse an event on `e` now, or nothing when it would
  // deliver it (for callers that change an element before its event, as
  // typing into a text box does).
  std::optional<std::string> whyRefused(const Form& form, const Element& e) const;
  // A timer's tick; nothing when the timer is off.
  void timerTick(Form& form, Element& timer);

  // Nested waits: the host marks a plain wait so that input arriving in it is
  // refused, as in a window that lets nothing through.
  void setInPlainWait(bool on) { inPlainWait_ = on; }
  bool inPlainWait() const { return inPlainWait_; }

  void end();
  bool ended() const { return ended_; }

  Host& host() { return host_; }
  SharedValues& shared() { return shared_; }

 private:
  struct Depth;
  void settle();
  void loadOnTop(const std::string& name);
  void unloadAll();

  Host& host_;
  SharedValues shared_;
  Listener* listener_ = nullptr;
  std::map<std::string, Factory> factories_;
  std::vector<std::unique_ptr<Form>> stack_;
  std::optional<std::string> pendingNavigate_;
  std::vector<std::string> pendingShow_;
  std::vector<Form*> pendingUnload_;
  int depth_ = 0;
  bool inPlainWait_ = false;
  bool ended_ = false;
};

}  // namespace vrask
