#include "parts/ask/ask.h"

#include "parts/ask/typed.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

namespace {

// Asks until `read` makes a value of the answer.
template <class Value, class Read>
std::optional<Value> askUntil(const Question& question, TextView wrong, const Read& read) {
  const Text& word = question.wrong;
  Text prompt = question.prompt;
  for (;;) {
    const Text answer = typedCode(talkAsk(prompt, question.title, question.preset));
    if (answer.empty()) return std::nullopt;
    if (std::optional<Value> value = read(answer)) return value;
    host().beep();
    prompt = answer + markPause + (word.empty() ? Text(wrong) : word) + markStop + question.prompt;
  }
}

Text outside(const Text& lowest, const Text& highest) {
  return lowest + u"から" + highest + u"までの数字を入力して下さい";
}

}  // namespace

std::optional<Text> askCode(const Question& question, const std::function<bool(TextView)>& takes) {
  return askUntil<Text>(question, u"入力できない値です",
                        [&](const Text& code) { return takes(code) ? std::optional(code) : std::nullopt; });
}

std::optional<double> askNumber(const Question& question, double lowest, double highest) {
  return askUntil<double>(question, outside(trimmed(str(lowest)), trimmed(str(highest))), [&](TextView code) {
    const auto number = typedNumber(code);
    return number && *number >= lowest && *number <= highest ? number : std::nullopt;
  });
}

std::optional<std::int32_t> askWhole(const Question& question, std::int32_t lowest, std::int32_t highest) {
  return askUntil<std::int32_t>(question, outside(decimal(lowest), decimal(highest)),
                                [&](TextView code) { return typedWhole(code, lowest, highest); });
}

std::optional<std::int16_t> askItem(const Question& question, std::int16_t lowest) {
  return askUntil<std::int16_t>(question, u"そんな項目番号はありません",
                                [&](TextView code) { return typedItem(code, lowest); });
}

std::optional<char16_t> askLetter(const Question& question, TextView letters) {
  Text listed;
  for (const char16_t letter : letters) listed += (listed.empty() ? Text() : Text(markPause)) + Text(1, letter);
  return askUntil<char16_t>(question, listed + u"のどれかを入力して下さい",
                            [&](TextView code) { return typedLetter(code, letters); });
}

}  // namespace zelko
