#include "speech/utterance.h"

#include <algorithm>

#include "speech/plain.h"

namespace zelko {

namespace {

constexpr TextView kSpeedHead = u"＜速さ";
constexpr TextView kUnclosedSpeed = u"500";  // the one speed that the character's form sends without its end

struct Tag {
  TextView value;
  std::size_t length = 0;
};

// The tag that begins at `at`: its name, its digits, and a backslash.
Tag tagAt(TextView text, std::size_t at, TextView name) {
  if (text.substr(at, name.size()) != name) return {};
  const std::size_t begin = at + name.size();
  std::size_t end = begin;
  while (end < text.size() && isDigit(text[end])) ++end;
  if (end == begin) return {};
  if (end < text.size() && text[end] == u'\\') return {text.substr(begin, end - begin), end + 1 - at};
  if (!text.substr(begin).starts_with(kUnclosedSpeed)) end = begin + 1;
  end = std::min(end, begin + kUnclosedSpeed.size());
  return {text.substr(begin, end - begin), end - at};
}

int valueOf(TextView digits) {
  int value = 0;
  for (char16_t digit : digits.substr(0, 6)) value = value * 10 + (digit - u'0');
  return value;
}

// Words a minute, where an ordinary voice speaks some 150: the form offers 0, 500, 1500 and 6000.
int rateOfWords(int words) {
  if (words < 500) return -60;
  if (words < 1500) return 0;
  return words < 6000 ? 50 : 100;
}

}  // namespace

std::size_t longestKana(std::optional<int> rate) {
  constexpr int seconds = 5 * 60;
  const int value = rate.value_or(0);
  return static_cast<std::size_t>(seconds * (1000 + value * (value < 0 ? 5 : 16)) / 100);
}

Utterance clipboardUtterance(TextView sentence) {
  Utterance result;
  for (std::size_t i = 0; i < sentence.size(); ++i) {
    const TextView rest = sentence.substr(i);
    const bool tag = rest.starts_with(kSpeedHead) && rest.size() > kSpeedHead.size() + 1 &&
                     rest[kSpeedHead.size()] >= u'０' && rest[kSpeedHead.size()] <= u'９' &&
                     rest[kSpeedHead.size() + 1] == u'＞';
    if (!tag) {
      result.words += sentence[i];
      continue;
    }
    result.speed = rest[kSpeedHead.size()] - u'０';
    i += kSpeedHead.size() + 1;
  }
  if (result.speed) result.rate = *result.speed * 200 / 9 - 100;
  return result;
}

Utterance agentUtterance(TextView sentence) {
  Utterance result;
  for (std::size_t i = 0; i < sentence.size();) {
    if (const Tag speed = tagAt(sentence, i, u"\\Spd="); speed.length != 0) {
      result.rate = rateOfWords(valueOf(speed.value));
      i += speed.length;
    } else if (const Tag pitch = tagAt(sentence, i, u"\\PIT="); pitch.length != 0) {
      result.pitch = std::min(valueOf(pitch.value), 60000) / 400 - 75;
      i += pitch.length;
    } else {
      result.words += sentence[i++];
    }
  }
  return result;
}

}  // namespace zelko
