// The Japanese dictionary: how words are read, and single kanji where no word holds them.
#pragma once

#include <memory>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

struct Morpheme {
  std::size_t begin = 0;  // units from 0 in the text
  std::size_t length = 0;
  Text pronunciation;      // katakana as spoken (particles ワ, エ); empty where the dictionary knows none
  bool particle = false;   // a particle or an auxiliary
  bool leansBack = false;  // belongs to the word before it: also suffixes and verb endings
};

// Loads on first use and never fails: without the dictionary's files `morphemes` gives nothing, and without the
// kanji table `kanjiReading` is empty. Not for two threads at once.
class Dictionary {
 public:
  Dictionary();
  ~Dictionary();
  Dictionary(const Dictionary&) = delete;
  Dictionary& operator=(const Dictionary&) = delete;

  bool found();
  // The words of the text in order, blanks left out. The text holds no surrogates.
  std::vector<Morpheme> morphemes(TextView text);
  // The first reading of a kanji (of Chinese origin where there is one), in katakana.
  Text kanjiReading(char16_t kanji);

 private:
  struct Words;
  struct Kanji;
  std::unique_ptr<Words> words_;
  std::unique_ptr<Kanji> kanji_;
};

}  // namespace zelko
