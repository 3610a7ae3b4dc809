// The 2 by 2 table: chi-square, Yates's correction, phi, and the simulation of chance tables.
#pragma once

#include "stats/numbers/random.h"

namespace zelko::numbers {

// a b
// c d
struct Fourfold {
  int a = 0, b = 0, c = 0, d = 0;
};

struct FourfoldTest {
  bool empty = true;  // a cell of 0 or below: all results are 0
  bool few = false;   // a cell of at most 5
  float chi = 0;
  double phi = 0;
  double p = 0;  // chiP(chi, 1)
  double exactP = 0;
};

enum class Yates { never, whereFew };

// n (ad - bc)^2 / ((a + b)(a + c)(b + d)(c + d)); with Yates n (|ad - bc| - n / 2)^2 where a cell is at most 5.
FourfoldTest fourfoldTest(const Fourfold& table, Yates yates);

// Chance tables of as many observations, each thrown into one of the four cells with the same probability.
class FourfoldTrials {
 public:
  // `observed` is the chi-square that a chance table must exceed.
  FourfoldTrials(const Fourfold& table, float observed);

  // One table. False where a margin of it is 0, so that its chi-square cannot be computed: the run ends there.
  bool once(const RandomBits& bits);

  int done() const { return done_; }
  int hits() const { return hits_; }
  double rate() const { return done_ > 0 ? static_cast<double>(hits_) / done_ : 0; }

 private:
  int n_, done_ = 0, hits_ = 0;
  float observed_;
};

}  // namespace zelko::numbers
