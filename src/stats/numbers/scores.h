// Marks: mean and deviation of the persons, standard values, levels; and how a question does.
#pragma once

#include <cstdint>
#include <optional>

namespace zelko::numbers {

// Two passes over the same persons: `count` each, then `spread` each. The two may leave out different persons; the mean
// and the divisors are those of the first.
class ScoreStats {
 public:
  void count(double score);
  void spread(double score);

  int n() const { return n_; }
  double sum() const;
  double mean() const;
  double sd() const;                // divisor n
  std::optional<double> u() const;  // divisor n - 1; none for a single person
  double min() const { return min_; }
  double max() const { return max_; }

 private:
  int n_ = 0;
  double origin_ = 0;
  long double shifted_ = 0, squares_ = 0;
  double min_ = 0, max_ = 0;
  bool spreadSeen_ = false;
};

// The SD is not 0.
double zValue(double score, double mean, double sd);
// 10 z + 50, towards minus infinity; an overflow fault beyond 16 bits.
std::int16_t tValue(double score, double mean, double sd);
// 1 to 5, parted at -1.5, -0.5, 0.5, 1.5; a boundary belongs to the higher level.
int fiveLevel(double z);

// One question over the persons who sat the exam.
class QuestionStats {
 public:
  // rest: the person's score without this question.
  void add(bool right, double rest);

  int n() const { return n_; }
  int right() const { return right_; }
  double rate() const { return n_ > 0 ? static_cast<double>(right_) / n_ : 0; }
  // The correlation of right or wrong with the rest; none where either has no spread.
  std::optional<double> discrimination() const;

 private:
  int n_ = 0, right_ = 0;
  double origin_ = 0;
  long double sum_ = 0, squares_ = 0, sumOfRight_ = 0;
};

}  // namespace zelko::numbers
