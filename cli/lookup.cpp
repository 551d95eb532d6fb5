#include "cli/lookup.h"

namespace vrask::cli {

namespace {

std::string range(int lo, int hi) {
  return "(" + std::to_string(lo) + ".." + std::to_string(hi) + ")";
}

}  // namespace

Form& currentForm(Program& program) {
  Form* form = program.current();
  if (form == nullptr) throw ScriptError("no form is open (start or open one first)");
  return *form;
}

ElementArray& findArray(Form& form, const std::string& name) {
  ElementArray* array = form.findArray(name);
  if (array == nullptr) throw ScriptError("unknown element " + name + " on form " + form.name());
  return *array;
}

Element& findElement(Form& form, const Reference& ref) {
  ElementArray& array = findArray(form, ref.name);
  if (!array.indexed()) {
    if (!ref.indexes.empty()) throw ScriptError(ref.name + " is not a control array");
    return array[array.lo()];
  }
  if (ref.indexes.empty()) {
    throw ScriptError("missing argument: " + ref.name + " is a control array " +
                      range(array.lo(), array.hi()) + ", give an index");
  }
  if (ref.indexes.size() > 1) throw ScriptError(ref.name + " takes one index");
  int i = ref.indexes.front();
  if (!array.contains(i)) {
    throw ScriptError("index out of range: " + ref.written() + ", " + ref.name + " is " +
                      range(array.lo(), array.hi()));
  }
  return array[i];
}

Value readProperty(const Element& element, const std::string& property) {
  Reference ref = parseReference(property);
  if (ref.indexes.size() > 1) throw ScriptError("unknown property " + property);
  std::optional<int> arg;
  if (!ref.indexes.empty()) arg = ref.indexes.front();
  if (std::optional<Value> value = element.get(ref.name, arg)) return *value;
  bool isList = element.kind == Kind::ListBox && ref.name == "List";
  if (isList && !arg) throw ScriptError("missing argument: write List(row)");
  if (isList) {
    std::string rows =
        element.ListCount() == 0 ? " is empty" : " has rows " + range(0, element.ListCount() - 1);
    throw ScriptError("index out of range: " + element.displayName() + "." + property + ", " +
                      element.displayName() + rows);
  }
  throw ScriptError("unknown property " + property + " of " + element.displayName() + " (a " +
                    std::string(kindName(element.kind)) + ")");
}

const Variable& findVariable(const Form& form, const std::string& name) {
  auto it = form.variables().find(name);
  if (it == form.variables().end()) {
    throw ScriptError("unknown variable " + name + " on form " + form.name());
  }
  return it->second;
}

Value readVariable(const Form& form, const Reference& ref) {
  const Variable& variable = findVariable(form, ref.name);
  if (ref.indexes.size() != variable.ranges.size()) {
    throw ScriptError("var." + ref.name + " takes " + std::to_string(variable.ranges.size()) +
                      " indexes");
  }
  for (size_t k = 0; k < ref.indexes.size(); ++k) {
    auto [lo, hi] = variable.ranges[k];
    if (ref.indexes[k] < lo || ref.indexes[k] > hi) {
      throw ScriptError("index out of range: var." + ref.written() + ", index " +
                        std::to_string(k + 1) + " is " + range(lo, hi));
    }
  }
  return variable.get(ref.indexes);
}

}  // namespace vrask::cli
