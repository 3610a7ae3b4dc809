// A number, an item or a letter asked by voice until the answer is one.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "platform/text/text.h"

namespace zelko {

struct Question {
  Text prompt, title;
  Text preset = {};  // stands marked in the box, each time
  Text wrong = {};  // said in front of the prompt, behind a beep, when it is asked again; empty for the procedure's own
};

// All of these go through typedCode first. nullopt for an empty answer and for Esc, which can't be told apart: what
// they mean is the caller's to do, a step back, a default, or an end in words.

// Asks until `takes` says yes to the answer; the answer as typedCode gives it.
std::optional<Text> askCode(const Question& question, const std::function<bool(TextView code)>& takes);

std::optional<double> askNumber(const Question& question, double lowest, double highest);
std::optional<std::int32_t> askWhole(const Question& question, std::int32_t lowest, std::int32_t highest);
std::optional<std::int16_t> askItem(const Question& question, std::int16_t lowest = 0);
// One of `letters`, which are capitals: u"ABC".
std::optional<char16_t> askLetter(const Question& question, TextView letters);

}  // namespace zelko
