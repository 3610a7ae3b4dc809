// Trials of a simulation behind a dialog that stops them, and how they are told.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "platform/forms/controls.h"
#include "platform/text/text.h"
#include "stats/numbers/random.h"

namespace zelko {

enum class SimulationEnd { done, stopped, failed };

// `once` makes one trial and answers false where it can't be computed: the run ends there, told.
SimulationEnd simulate(std::int32_t trials, const std::function<bool(const numbers::RandomBits&)>& once);

// The number of trials in the box; nullopt, told and the box marked, where it is none from 1 on.
std::optional<std::int32_t> trialsFrom(TextBox& box);

// "シミュレーション1000回中12回、1.2パーセント", or that it was stopped behind so many.
Text trialsSentence(SimulationEnd end, int done, int hits);

// A probability as it is said: four decimals, of a small one four digits.
Text spokenP(double p);
// The sentence behind a probability that its formula no longer gives rightly, from that chi-square on.
Text exactSentence(double p);
inline constexpr double kChiPRightUpTo = 30;

}  // namespace zelko
