#include "cli/dump.h"

#include <algorithm>

#include "cli/lookup.h"
#include "cli/script.h"
#include "toolkit/value.h"

namespace vrask::cli {

namespace {

std::string key(const std::string& name) {
  return jsonQuote(name) + ": ";
}

std::string elementState(const Element& e) {
  std::string out = "{";
  bool first = true;
  for (std::string_view property : Element::stateProperties(e.kind)) {
    if (!first) out += ", ";
    first = false;
    out += key(std::string(property));
    if (property == "List") {
      out += "[";
      for (size_t i = 0; i < e.List.size(); ++i) out += (i > 0 ? ", " : "") + jsonQuote(e.List[i]);
      out += "]";
    } else {
      out += toJson(*e.get(property));
    }
  }
  return out + "}";
}

// A control array as an object keyed by index; `only` picks one element.
std::string arrayState(const ElementArray& array, std::optional<int> only) {
  if (!array.indexed()) return elementState(array[array.lo()]);
  std::string out = "{";
  for (const Element& e : array) {
    if (only && e.index != *only) continue;
    if (out.size() > 1) out += ", ";
    out += key(std::to_string(e.index)) + elementState(e);
  }
  return out + "}";
}

// A variable's values, nested one object per index: {"1": {"1": 0, ...}, ...}.
std::string variableState(const Variable& variable, std::vector<int>& at) {
  if (at.size() == variable.ranges.size()) return toJson(variable.get(at));
  auto [lo, hi] = variable.ranges[at.size()];
  std::string out = "{";
  for (int i = lo; i <= hi; ++i) {
    if (i > lo) out += ", ";
    at.push_back(i);
    out += key(std::to_string(i)) + variableState(variable, at);
    at.pop_back();
  }
  return out + "}";
}

std::string messagesState(const HeadlessHost& host) {
  std::string out = "[";
  for (const HeadlessHost::Message& m : host.messages()) {
    if (out.size() > 1) out += ", ";
    out += "{" + key("text") + jsonQuote(m.text) + ", " + key("title") + jsonQuote(m.title) + "}";
  }
  return out + "]";
}

// One entry a line, so that dumps compare well line by line.
std::string block(const std::vector<std::string>& entries) {
  if (entries.empty()) return "{}";
  std::string out = "{\n";
  for (size_t i = 0; i < entries.size(); ++i) {
    out += "  " + entries[i] + (i + 1 < entries.size() ? ",\n" : "\n");
  }
  return out + " }";
}

struct Selection {
  bool all = true;
  std::map<std::string, std::optional<int>> elements;  // name -> one index, or all
  std::vector<std::string> variables;

  bool hasElement(const std::string& name) const { return all || elements.count(name) != 0; }
  bool hasVariable(const std::string& name) const {
    return all || std::find(variables.begin(), variables.end(), name) != variables.end();
  }
};

Selection select(Form& form, const std::vector<std::string>& names) {
  Selection selection;
  selection.all = names.empty();
  for (const std::string& name : names) {
    Reference ref = parseReference(name);
    bool isVariable = ref.indexes.empty() && form.variables().count(ref.name) != 0;
    bool isElement = form.hasElement(ref.name);
    if (!isVariable && !isElement) {
      throw ScriptError("unknown element or variable " + name + " on form " + form.name());
    }
    if (isVariable) selection.variables.push_back(ref.name);
    if (!isElement) continue;
    std::optional<int> index;
    if (!ref.indexes.empty()) index = findElement(form, ref).index;
    selection.elements[ref.name] = index;
  }
  return selection;
}

}  // namespace

std::string dump(Program& program, const HeadlessHost& host,
                 const std::vector<std::string>& names) {
  Form* form = program.current();
  std::vector<std::string> elements;
  std::vector<std::string> variables;
  if (form != nullptr) {
    Selection selection = select(*form, names);
    for (const ElementArray* array : form->designOrder()) {
      if (!selection.hasElement(array->name())) continue;
      std::optional<int> only = selection.all ? std::nullopt : selection.elements[array->name()];
      elements.push_back(key(array->name()) + arrayState(*array, only));
    }
    for (const auto& [name, variable] : form->variables()) {
      if (!selection.hasVariable(name)) continue;
      std::vector<int> at;
      variables.push_back(key(name) + variableState(variable, at));
    }
  } else if (!names.empty()) {
    currentForm(program);  // says that no form is open
  }
  std::string formName = form == nullptr ? "" : form->name();
  return "{" + key("form") + jsonQuote(formName) + ", " + key("ended") +
         (program.ended() ? "true" : "false") + ", " + key("clock") + formatNumber(host.clock()) +
         ",\n " + key("messages") + messagesState(host) + ",\n " + key("elements") +
         block(elements) + ",\n " + key("vars") + block(variables) + "}";
}

}  // namespace vrask::cli
