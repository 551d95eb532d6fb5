#include "frame/play_descriptor.h"

#include <stdexcept>

#include "frame/helpers.h"
#include "toolkit/form.h"

namespace vrask {

Element& elementOf(Form& form, const Choice& choice) {
  ElementArray* array = form.findArray(choice.element);
  if (array == nullptr) throw std::out_of_range("no element " + choice.element);
  return (*array)[choice.index.value_or(array->lo())];
}

double numberOf(Form& form, const std::string& variable, const std::vector<int>& indexes) {
  Value v = form.variables().at(variable).get(indexes);
  if (const double* d = std::get_if<double>(&v)) return *d;
  throw std::out_of_range("variable " + variable + " is not a number");
}

std::pair<int, int> shownPoints(Form& form) {
  return {static_cast<int>(Val(elementOf(form, {"Label5", {}}).Caption)),
          static_cast<int>(Val(elementOf(form, {"Label6", {}}).Caption))};
}

}  // namespace vrask
