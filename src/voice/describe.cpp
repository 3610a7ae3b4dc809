#include "voice/describe.h"

#include "platform/forms/controls.h"
#include "platform/forms/keys.h"
#include "voice/talk.h"

namespace zelko {

CharacterHooks characterHooks;
bool describesWalk = false;

namespace {

struct Question {
  Text characters;
  bool last = false;  // the caret stands behind the text
  bool operator==(const Question&) const = default;
};

Question answered;  // empty: another key came between
Text waiting;       // the character that the walk stands on

bool isPair(TextView text, std::size_t at) {
  return at + 1 < text.size() && (text[at] & 0xFC00) == 0xD800 && (text[at + 1] & 0xFC00) == 0xDC00;
}

TextView characterAt(TextView text, std::size_t at) { return text.substr(at, isPair(text, at) ? 2 : 1); }

Question questionOf(const TextBox& box, TextView instead) {
  const Text& text = box.content();
  if (text.empty()) return {trimmed(instead), false};
  if (box.selLength() > 0) return {box.selText(), false};
  const auto caret = static_cast<std::size_t>(box.selStart());
  if (caret < text.size()) return {Text(characterAt(text, caret)), false};
  const std::size_t last = text.size() > 1 && isPair(text, text.size() - 2) ? 2 : 1;
  return {text.substr(text.size() - last), true};
}

Text answer(const Question& question, bool codes) {
  if (question.characters.empty()) return u"ﾌﾞﾗﾝｸ";
  Text sentence;
  for (std::size_t at = 0; at < question.characters.size();) {
    const TextView character = characterAt(question.characters, at);
    if (!sentence.empty()) sentence += markStop;
    sentence += codes ? characterHooks.code(character) : characterHooks.description(character);
    at += character.size();
  }
  return question.last ? sentence + markStop + u"最後の文字" : sentence;
}

bool isModifier(int code) { return code == key::Shift || code == key::Ctrl || code == key::Alt; }

}  // namespace

bool answersDescription(const TextBox& box, const KeyEvent& key, TextView instead) {
  if (isModifier(key.code)) return false;
  if (!waiting.empty()) characterHooks.wait(false);
  waiting.clear();
  if (!key.is('K', shift::ShiftCtrl)) {
    answered = {};
    return false;
  }
  if (!gateOpens()) return true;
  Question question = questionOf(box, instead);
  const bool again = !question.characters.empty() && question == answered;
  ++composedSentences;
  talkNow(answer(question, again));
  answered = again ? Question{} : std::move(question);
  return true;
}

void describeAfterWait(TextView character) {
  if (!describesWalk || !characterHooks.isKanji(character)) return;
  waiting = character;
  characterHooks.wait(true);
}

void onCharacterWait() {
  if (waiting.empty() || !gateOpens()) return;
  ++composedSentences;
  talkNow(characterHooks.description(waiting));
  waiting.clear();
}

}  // namespace zelko
