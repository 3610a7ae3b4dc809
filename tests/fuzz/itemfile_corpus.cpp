// The committed item files, cut off at every byte, and so many mutations of them: itemfile_corpus FOLDER COUNT.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "fuzz/itemfile_check.h"

namespace {

std::vector<std::string> corpusOf(const char* folder) {
  std::set<std::filesystem::path> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) names.insert(entry.path());
  std::vector<std::string> texts;
  for (const auto& name : names) {
    std::ifstream in(name, std::ios::binary);
    texts.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }
  return texts;
}

std::string mutated(const std::vector<std::string>& corpus, std::mt19937& random) {
  static const std::string pieces[] = {",", "'",   "\r",  "\n",    "\"",    "-",     "\x81",
                                       "0", "254", "255", "32768", "9E999", "&HFFFF"};
  const auto upTo = [&](std::size_t n) { return static_cast<std::size_t>(random() % n); };
  std::string text = corpus[upTo(corpus.size())];
  for (std::size_t changes = 1 + upTo(6); changes > 0; --changes) {
    const std::size_t at = upTo(text.size() + 1);
    const std::size_t length = upTo(6);
    switch (upTo(4)) {
      case 0:
        text.insert(at, pieces[upTo(std::size(pieces))]);
        break;
      case 1:
        text.erase(at, length);
        break;
      case 2:
        text.replace(at, length, pieces[upTo(std::size(pieces))]);
        break;
      default:
        text.insert(at, 1, static_cast<char>(random()));
        break;
    }
  }
  return text;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return std::fprintf(stderr, "itemfile_corpus FOLDER COUNT\n"), 2;
  const auto corpus = corpusOf(argv[1]);
  if (corpus.empty()) return std::fprintf(stderr, "no item files in %s\n", argv[1]), 1;
  long runs = 0;
  for (const std::string& text : corpus)
    for (std::size_t length = 0; length <= std::min<std::size_t>(text.size(), 400); ++length, ++runs)
      zelko::test::checkItemFile(std::string_view(text).substr(0, length));
  std::mt19937 random(1);
  for (long count = std::atol(argv[2]); count > 0; --count, ++runs) zelko::test::checkItemFile(mutated(corpus, random));
  std::printf("%ld item files read or refused\n", runs);
}
