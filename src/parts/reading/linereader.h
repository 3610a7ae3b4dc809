// Reading a text box line by line: what a key-up says of the line that the caret has come to.
#pragma once

#include "platform/forms/controls.h"

namespace zelko {

struct ReadingWords {
  TextView blank = u"空行";  // for a line without text
  // With each line "先頭ぎょう" or "最終ぎょう" and the place in percent; at an end of the text the word for it; Shift
  // with an arrow reads what is marked.
  bool places = true;
};

class LineReader {
 public:
  LineReader(TextBox& box, ReadingWords words) : box_(box), words_(words) {}

  ReadingWords words() const { return words_; }
  void setWords(ReadingWords words) { words_ = words; }

  // At each key-down of the box: remembers where the caret stands.
  void keyDown();
  // At each key-up: true where the key moved the caret to another line and its line was said, gate permitting.
  bool keyUp(const KeyEvent& key);

  Text lineSentence() const;

 private:
  Text placeWords() const;
  Text endWord(int code) const;

  TextBox& box_;
  ReadingWords words_;
  std::size_t lineBefore_ = 0;  // where the line of the caret began before the key
};

// The line that holds the character position `caret` (from 0) of a text whose lines end in CR LF or LF.
Text lineAt(TextView text, std::size_t caret);

}  // namespace zelko
