// The system's own probability procedures, with their constants and their limits. exact.h has the values to hold beside
// them.
#pragma once

namespace zelko::numbers {

// Lower tail of the standard normal distribution (Algorithm 209, Gauss, Communications of the ACM 6, 1963).
double norm(double z);

// Two-sided probability of Student's t by the finite series in arctan(|t| / sqrt(v)) (Abramowitz and
// Stegun 26.7.3, 26.7.4), 2/pi as 0.63661977. 0 for v below 1.
double prbT(double t, int v);

// Upper tail of F by Paulson's approximation (Annals of Mathematical Statistics 13, 1942) and `norm`.
double paulF(double F, int m, int n);

// Upper tail of chi-square by 40 terms of the series of the incomplete gamma function (Abramowitz and Stegun 6.5.29):
// right to about 8 places up to 30, too large beyond. An overflow fault where a step leaves the range of a double (more
// than about 340 degrees of freedom), a fault below 0.
double chiP(double chi, int df);

struct Binomial {
  double probability = 0;  // of exactly r events
  double sum = 0;          // of 0 to r events
};

// By the recurrence from P(0) = (1 - p)^n. 0 <= r <= n <= 10000, 0 <= p < 1. P(0) below the range of a double makes all
// 0.
Binomial Bp(int r, double p, int n);

// Whether the two are the same to four digits behind the point; where not, the exact one is spoken too.
bool sameToFourDigits(double own, double exact);

}  // namespace zelko::numbers
