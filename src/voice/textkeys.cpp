// Text boxes by ear: what a key-up says of text, selection and caret.
#include <cstdlib>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/text/number.h"
#include "voice/describe.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

int selPrev = 0;

namespace {

constexpr std::size_t kAroundCaret = 10;  // characters

TextBox* activeBox() { return dynamic_cast<TextBox*>(screen().activeControl()); }

bool isSidewards(int code) { return code == key::Left || code == key::Right; }

Text movedEnd(int code, int length) {
  if (length == selPrev) return {};
  const bool grows = length > selPrev;
  return grows == (code == key::Left) ? u" ﾊｼﾞﾒﾆ ｱﾘﾏｽ" : u" ｵﾜﾘﾆ ｱﾘﾏｽ";
}

// A single character is named, a longer run said as text.
Text wordsForChange(const Text& previous, const Text& now) {
  if (const Text typed = typedOver(previous, now); !typed.empty()) return typed.size() == 1 ? charName(typed) : typed;
  const Text words = diffText(previous, now);
  const auto change = static_cast<std::int64_t>(now.size()) - static_cast<std::int64_t>(previous.size());
  return std::abs(change) > 1 ? words : charName(left(words, 1)) + mid(words, 2);
}

void sayNow(Text sentence) {
  ++composedSentences;
  talkNow(sentence);
}

// The line of the caret behind `caret` characters; empty in a text of one line, and at the very front, which has a
// word of its own.
Text lineWord(TextView text, std::size_t caret, std::size_t nextEnd) {
  if (!contains(text, u"\r")) return {};
  if (nextEnd == 0) return u"最終ぎょう";
  if (caret == 0) return {};
  const TextView above = text.substr(0, caret - 1);
  const auto ends = static_cast<std::int64_t>(above.size() - dropChar(above, u'\r').size());
  return decimal(ends + 1) + u"ぎょう";
}

Text lineBefore(TextView text, std::size_t caret) {
  Text before(text.substr(0, caret));
  if (const std::size_t end = rinstrS(before, u"\r", 1)) before = mid(before, end + 2);
  const std::size_t first = before.find_first_not_of(kLineEnd);
  return first == Text::npos ? Text() : before.substr(first);
}

Text caretReport(TextView text, std::size_t caret) {
  const std::size_t nextEnd = positionOf(text, u"\r", caret + 1);
  const Text before = lineBefore(text, caret);
  const Text after = mid(text, caret + 1, nextEnd > caret ? nextEnd - caret : text.size());
  return (caret == 0 ? u"先頭ぎょう" : u"") + lineWord(text, caret, nextEnd) +
         decimal(static_cast<std::int64_t>(before.size()) + 1) + u"もじめ" + right(before, kAroundCaret) +
         u"キャレット" + left(after, kAroundCaret);
}

}  // namespace

void talkSelection(const TextBox& box, int code) {
  if (talkMode != 0 && box.selLength() != 0 && gateOpens()) {
    sayNow(box.selText() + markStop + u"ｶﾞｾﾝﾀｸｻﾚﾃｲﾏｽ.ｶｰｿﾙﾜ ﾖﾐｱｹﾞｹﾞﾝｺｳﾉ " + movedEnd(code, box.selLength()));
  }
  selPrev = box.selLength();
}

void talkTextKey(int code, int mask, [[maybe_unused]] int third, TextView description) {
  const TextBox* box = activeBox();
  if (!box) return;
  if (box->selLength() == 0) selPrev = 0;
  const KeyEvent key{code, mask};
  if (answersDescription(*box, key, {})) return;
  if (isSidewards(code) && mask == shift::Shift && !box->content().empty()) {
    talkSelection(*box, code);
  } else if (isRepeatKey(key)) {
    if (gateOpens()) sayNow(box->content() + Text(description));
  } else if (key.is(key::function(12), shift::None)) {
    talkCaret();
  } else if (isSidewards(code) && mask == shift::None) {
    if (gateOpens()) talkCaretChar();
  } else if (code == key::Shift && (mask & ~shift::Shift) == 0) {
    if (gateOpens()) sayNow(trimmed(box->content()).empty() ? Text(u"ブランク") : box->content());
  }
}

void talkCaretChar() {
  const TextBox* box = activeBox();
  if (!box || talkMode == 0) return;
  const Text character = mid(box->content(), static_cast<std::size_t>(box->selStart()) + 1, 1);
  sayNow(charName(character));
  describeAfterWait(character);
}

void talkCaret() {
  const TextBox* box = activeBox();
  if (box && gateOpens()) sayNow(caretReport(box->content(), static_cast<std::size_t>(box->selStart())));
}

void talkRichChange(const TextBox& box, Text& previous) {
  const Text now = box.content();
  if (now == previous) return;
  if (gateOpens()) sayNow(wordsForChange(previous, now));
  previous = now;
}

}  // namespace zelko
