// Probabilities to the precision of a double, over the whole range, also far out in the tails.
#pragma once

#include "stats/numbers/probability.h"

namespace zelko::numbers {

// Upper tail of the standard normal distribution, by the complementary error function.
double normalTail(double z);

// Upper tail of chi-square: a finite sum over exp, for odd degrees begun with erfc (Abramowitz and
// Stegun 26.4.4, 26.4.5). chi >= 0, df >= 1.
double chiExact(double chi, int df);

// The density of F in x for m and n degrees of freedom. x > 0.
double f(double x, int m, int n);

// Upper tail of F: the density times the continued fraction of the incomplete beta function (Abramowitz and
// Stegun 26.5.8).
double prbF(double F, int m, int n);

// Two-sided probability of Student's t.
double tExact(double t, int v);

// As Bp, for every p and n: the terms are taken relative to the most probable one.
Binomial binomialExact(int r, double p, int n);

}  // namespace zelko::numbers
