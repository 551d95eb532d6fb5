#include "toolkit/random.h"

namespace vrask {

double RandomGenerator::next() {
  if (!pinned_.empty()) {
    const double v = pinned_.front();
    pinned_.pop_front();
    return v;
  }
  state_ = static_cast<std::uint32_t>(
      (static_cast<std::uint64_t>(state_) * 1140671485U + 12820163U) % kModulus);
  return static_cast<double>(state_) / kModulus;
}

}  // namespace vrask
