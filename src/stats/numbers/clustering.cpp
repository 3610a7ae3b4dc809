#include "stats/numbers/clustering.h"

#include <algorithm>
#include <cmath>

#include "platform/fault.h"
#include "stats/numbers/distances.h"
#include "stats/numbers/limits.h"

namespace zelko::numbers {

namespace {
constexpr const char16_t* kName = u"クラスタ分析";
}

Clustering::Clustering(Matrix distances, Linkage method, double beta)
    : D_(std::move(distances)), method_(method), beta_(beta), size_(static_cast<std::size_t>(D_.rows), 1) {
  requireAtMost(static_cast<std::size_t>(D_.rows), kObjectLimit, kName, u"記録");
  if (method < Linkage::single || method > Linkage::flexible) stop(kName, kSubscript);
  for (int i = 0; i < D_.rows; ++i) {
    for (int j = i + 1; j < D_.rows; ++j) zeros_ += D_(i, j) == 0;
  }
}

bool Clustering::choose() {
  const bool zeroCounts = static_cast<int>(merges_.size()) < zeros_;
  double min = kFirstMinimum;
  int mi = -1, mj = -1;
  for (int i = 0; i < D_.rows && min > 0; ++i) {
    if (size_[i] == 0) continue;
    for (int j = i + 1; j < D_.rows && min > 0; ++j) {
      const double d = D_(i, j);
      if (size_[j] == 0 || !(d < min) || d < 0 || (d == 0 && !zeroCounts)) continue;
      min = d;
      mi = i;
      mj = j;
    }
  }
  if (mi < 0) return false;
  const int code = (mi + 1) * 256 + mj + 1;
  merges_.push_back(
      {mi + 1, mj + 1, min, static_cast<std::int16_t>(code > 32767 ? code - 65536 : code), size_[mi] + size_[mj]});
  return true;
}

Clustering::Weights Clustering::weights(double ni, double nj, double nh) const {
  const double nk = ni + nj;
  switch (method_) {
    case Linkage::single:
      return {0.5, 0.5, 0, -0.5};
    case Linkage::complete:
      return {0.5, 0.5, 0, 0.5};
    case Linkage::average:
      return {ni / nk, nj / nk, 0, 0};
    case Linkage::centroid:
      return {ni / nk, nj / nk, -ni * nj / (nk * nk), 0};
    case Linkage::median:
      return {0.5, 0.5, -0.25, 0};
    case Linkage::ward:
      return {(ni + nh) / (nk + nh), (nj + nh) / (nk + nh), -nh / (nk + nh), 0};
    case Linkage::flexible:
      return {(1 - beta_) / 2, (1 - beta_) / 2, beta_, 0};
  }
  stop(kName, kSubscript);
}

void Clustering::merge() {
  const int mi = merges_.back().i - 1, mj = merges_.back().j - 1;
  const double joined = D_(mi, mj);
  for (int h = 0; h < D_.rows; ++h) {
    if (h == mi || h == mj || size_[h] == 0) continue;
    const Weights w = weights(size_[mi], size_[mj], size_[h]);
    const double toI = D_(h, mi), toJ = D_(h, mj);
    D_(h, mi) = D_(mi, h) = w.i * toI + w.j * toJ + w.beta * joined + w.gamma * std::abs(toI - toJ);
  }
  size_[mi] += size_[mj];
  size_[mj] = 0;
}

void Clustering::clustring() {
  while (choose()) merge();
}

double Clustering::highestLevel() const {
  double highest = 0;
  for (const Merge& step : merges_) highest = std::max(highest, step.mergeLevel);
  return highest;
}

}  // namespace zelko::numbers
