#include "speech/dictionary.h"

#include <mecab.h>

#include <cstdlib>
#include <fstream>
#include <map>
#include <string>

namespace zelko {

namespace {

// The columns of the dictionary's rows: word class, its subclass, ..., pronunciation.
constexpr std::size_t kClass = 0;
constexpr std::size_t kSubclass = 1;
constexpr std::size_t kPronunciation = 8;

std::vector<std::string_view> columns(std::string_view row) {
  std::vector<std::string_view> parts;
  while (true) {
    const std::size_t comma = row.find(',');
    parts.push_back(row.substr(0, comma));
    if (comma == std::string_view::npos) return parts;
    row.remove_prefix(comma + 1);
  }
}

// The place in the UTF-16 text of each byte of its UTF-8 form (no surrogate pairs).
std::vector<std::size_t> unitOfByte(std::string_view utf8) {
  std::vector<std::size_t> units(utf8.size() + 1);
  std::size_t unit = 0;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    if (i > 0 && (static_cast<unsigned char>(utf8[i]) & 0xC0) != 0x80) ++unit;
    units[i] = unit;
  }
  units[utf8.size()] = utf8.empty() ? 0 : unit + 1;
  return units;
}

void readWordClass(const std::vector<std::string_view>& row, Morpheme& word) {
  const std::string_view kind = row[kClass];
  word.particle = kind == "助詞" || kind == "助動詞";
  const bool suffix = row.size() > kSubclass && (row[kSubclass] == "接尾" || row[kSubclass] == "非自立");
  word.leansBack = word.particle || suffix;
}

}  // namespace

struct Dictionary::Words {
  std::unique_ptr<MeCab::Model> model;
  std::unique_ptr<MeCab::Tagger> tagger;
  std::unique_ptr<MeCab::Lattice> lattice;

  // The dictionary named by the system may be in another encoding or of another layout: try it on a particle.
  bool load(const std::string& arguments) {
    model.reset(MeCab::createModel(arguments.c_str()));
    if (!model) return false;
    tagger.reset(model->createTagger());
    lattice.reset(model->createLattice());
    if (!tagger || !lattice) return false;
    lattice->set_sentence("私は");
    if (!tagger->parse(lattice.get())) return false;
    const MeCab::Node* last = lattice->eos_node()->prev;
    const auto row = columns(last->feature);
    return row.size() > kPronunciation && row[kPronunciation] == "ワ";
  }
};

// One kanji a line: the sign, its codes (U4e9c among them), readings in kana, meanings. The file is in EUC, where
// kana are two bytes: A5 or A4, and the place in the row.
struct Dictionary::Kanji {
  std::map<char16_t, Text> readings;

  Kanji() {
    std::ifstream file("/usr/share/edict/kanjidic", std::ios::binary);
    for (std::string line; std::getline(file, line);) {
      const std::size_t code = line.find(" U");
      if (line.starts_with("#") || code == std::string::npos) continue;
      const unsigned long kanji = std::strtoul(line.c_str() + code + 2, nullptr, 16);
      if (kanji > 0 && kanji < 0x10000) readings[static_cast<char16_t>(kanji)] = firstReading(line);
    }
  }

  static Text firstReading(std::string_view line) {
    for (std::size_t blank = line.find(' '); blank != std::string_view::npos; blank = line.find(' ', blank + 1)) {
      const Text reading = kanaAt(line.substr(blank + 1));
      if (!reading.empty()) return reading;
    }
    return Text();
  }

  static Text kanaAt(std::string_view bytes) {
    Text kana;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
      const auto row = static_cast<unsigned char>(bytes[i]);
      const auto place = static_cast<unsigned char>(bytes[i + 1]);
      if ((row != 0xA4 && row != 0xA5) || place < 0xA1 || place > 0xF6) break;
      kana += static_cast<char16_t>(0x30A1 + place - 0xA1);
    }
    return kana;
  }
};

Dictionary::Dictionary() = default;
Dictionary::~Dictionary() = default;

bool Dictionary::found() {
  if (!words_) {
    words_ = std::make_unique<Words>();
    constexpr const char* places[] = {"-r /dev/null -d /var/lib/mecab/dic/ipadic-utf8",
                                      "-r /dev/null -d /usr/share/mecab/dic/ipadic", ""};
    for (const char* place : places) {
      if (words_->load(place)) break;
      *words_ = Words();
    }
  }
  return words_->lattice != nullptr;
}

std::vector<Morpheme> Dictionary::morphemes(TextView text) {
  std::vector<Morpheme> words;
  if (!found()) return words;
  const std::string utf8 = toUtf8(text);
  const std::vector<std::size_t> unit = unitOfByte(utf8);
  words_->lattice->set_sentence(utf8.c_str(), utf8.size());
  if (!words_->tagger->parse(words_->lattice.get())) return words;
  for (const MeCab::Node* node = words_->lattice->bos_node()->next; node->next != nullptr; node = node->next) {
    const auto begin = static_cast<std::size_t>(node->surface - words_->lattice->sentence());
    Morpheme word;
    word.begin = unit[begin];
    word.length = unit[begin + node->length] - word.begin;
    const auto row = columns(node->feature);
    readWordClass(row, word);
    if (row.size() > kPronunciation && row[kPronunciation] != "*") word.pronunciation = fromUtf8(row[kPronunciation]);
    words.push_back(std::move(word));
  }
  return words;
}

Text Dictionary::kanjiReading(char16_t kanji) {
  if (!kanji_) kanji_ = std::make_unique<Kanji>();
  const auto entry = kanji_->readings.find(kanji);
  return entry == kanji_->readings.end() ? Text() : entry->second;
}

}  // namespace zelko
