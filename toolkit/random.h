// The run's one random generator. It is never seeded, so every start of the
// program deals the same sequence; the computer players' choices depend on it.
#pragma once

#include <cstdint>
#include <deque>

namespace vrask {

class RandomGenerator {
 public:
  // The next value in [0, 1).
  double next();

  // The next calls return these values, then the sequence goes on where it was.
  void pin(double value) { pinned_.push_back(value); }

 private:
  static constexpr std::uint32_t kModulus = 1U << 24;
  std::uint32_t state_ = 327680;
  std::deque<double> pinned_;
};

}  // namespace vrask
