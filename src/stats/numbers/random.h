// Random draws of the simulations, from whatever gives 32 random bits (the host's generator, seeded, in the program).
#pragma once

#include <cstdint>
#include <functional>

namespace zelko::numbers {

using RandomBits = std::function<std::uint32_t()>;

// A single from 0 to below 1, in steps of 2^-24.
float rnd(const RandomBits& bits);

// Int(Rnd * n + 1): a uniform whole number from 1 to n, without the rounding of a single that would reach n + 1.
inline int fnr(int n, const RandomBits& bits) {
  return static_cast<int>((std::uint64_t{bits() >> 8} * static_cast<std::uint32_t>(n)) >> 24) + 1;
}

}  // namespace zelko::numbers
