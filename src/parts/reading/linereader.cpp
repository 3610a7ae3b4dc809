#include "parts/reading/linereader.h"

#include <algorithm>

#include "platform/text/number.h"
#include "voice/names.h"
#include "voice/talk.h"

namespace zelko {

namespace {

std::size_t startOfLine(TextView text, std::size_t caret) {
  const std::size_t before = caret == 0 ? TextView::npos : text.rfind(u'\n', caret - 1);
  return before == TextView::npos ? 0 : before + 1;
}

std::size_t endOfLine(TextView text, std::size_t start) {
  return std::min(text.find_first_of(u"\r\n", start), text.size());
}

bool isVertical(int code) {
  return code == key::Up || code == key::Down || code == key::PageUp || code == key::PageDown;
}

bool movesToAnotherLine(const KeyEvent& key) {
  if (isVertical(key.code)) return key.mask == shift::None;
  return (key.code == key::Home || key.code == key::End) && key.mask == shift::Ctrl;
}

}  // namespace

Text lineAt(TextView text, std::size_t caret) {
  const std::size_t start = startOfLine(text, caret);
  return Text(text.substr(start, endOfLine(text, start) - start));
}

void LineReader::keyDown() { lineBefore_ = startOfLine(box_.content(), static_cast<std::size_t>(box_.selStart())); }

bool LineReader::keyUp(const KeyEvent& key) {
  // Shift+PageDown is the key that repeats what was said.
  if (words_.places && (key.is(key::Up, shift::Shift) || key.is(key::Down, shift::Shift))) {
    talkSelection(box_, key.code);
    return true;
  }
  if (!movesToAnotherLine(key)) return false;
  if (!gateOpens()) return true;
  ++composedSentences;
  talkNow(endWord(key.code) + lineSentence());
  return true;
}

Text LineReader::lineSentence() const {
  const Text line = lineAt(box_.content(), static_cast<std::size_t>(box_.selStart()));
  const Text said = trimmed(line).empty() ? Text(words_.blank) : line;
  return words_.places ? said + markPause + placeWords() : said;
}

Text LineReader::placeWords() const {
  const Text& text = box_.content();
  const auto caret = static_cast<std::size_t>(box_.selStart());
  const std::size_t start = startOfLine(text, caret);
  Text words;
  if (start == 0) words += u"先頭ぎょう" + markPause;
  if (endOfLine(text, start) == text.size()) words += u"最終ぎょう" + markPause;
  const std::size_t percent = text.empty() ? 0 : (caret * 200 + text.size()) / (text.size() * 2);
  return words + decimal(static_cast<std::int64_t>(percent)) + u"パーセント位置";
}

// The key found no line to go to.
Text LineReader::endWord(int code) const {
  const bool stayed = startOfLine(box_.content(), static_cast<std::size_t>(box_.selStart())) == lineBefore_;
  if (!words_.places || !stayed || !isVertical(code)) return {};
  const bool up = code == key::Up || code == key::PageUp;
  return Text(up ? u"ﾊｼﾞﾒﾆ ｱﾘﾏｽ" : u"ｵﾜﾘﾆ ｱﾘﾏｽ") + markPause;
}

}  // namespace zelko
