// Finding what a script names on the current form: elements, their
// properties, variables. Every miss is a script error that says what was
// wrong.
#pragma once

#include <string>

#include "cli/script.h"
#include "toolkit/form.h"
#include "toolkit/program.h"
#include "toolkit/value.h"

namespace vrask::cli {

Form& currentForm(Program& program);

ElementArray& findArray(Form& form, const std::string& name);

// One element: `ref` carries an index exactly when the element is part of a
// control array.
Element& findElement(Form& form, const Reference& ref);

// `property` as written after the dot: "Caption", "List(2)".
Value readProperty(const Element& element, const std::string& property);

const Variable& findVariable(const Form& form, const std::string& name);

// The variable's value at the reference's indexes, which must fit its ranges.
Value readVariable(const Form& form, const Reference& ref);

}  // namespace vrask::cli
