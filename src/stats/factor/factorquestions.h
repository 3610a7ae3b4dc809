// What the factor analysis asks, one question after the other. nullopt for Esc and for an empty answer: the run stops.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

enum class CommunalityKind { smc = 1, maxR, assigned };
std::optional<CommunalityKind> askCommunalityKind();
// A value from 0 to 1 for each variable, which is asked by number and name.
std::optional<std::vector<double>> askCommunalities(const std::vector<std::int16_t>& items);

// 1 to the number of eigenvalues, which are heard with the question: those with a diagonal of 1, and with communalities
// in it, named by `label`. A factor with a negative one of these has no loadings.
std::optional<std::int32_t> askFactors(std::span<const double> full, std::span<const double> reduced, TextView label);

struct LoadingMethod {
  bool iterated = false;
  std::int32_t maximum = 1;
  double eps = 0;
  bool reportsCycles = false;
};
std::optional<LoadingMethod> askLoadingMethod();

struct RotationMethod {
  bool reportsCycles = false;
  double eps = 0;
};
std::optional<RotationMethod> askRotation();

std::optional<bool> askScores();

}  // namespace zelko
