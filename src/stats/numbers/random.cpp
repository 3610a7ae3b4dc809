#include "stats/numbers/random.h"

namespace zelko::numbers {

float rnd(const RandomBits& bits) { return static_cast<float>(bits() >> 8) / 16777216.0f; }

}  // namespace zelko::numbers
