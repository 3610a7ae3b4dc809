#include "fuzz/corpus.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <vector>

namespace zelko::test {

namespace {

constexpr std::size_t kMostCuts = 400;  // of one input

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

std::string mutated(const std::vector<std::string>& corpus, std::span<const std::string> pieces, std::mt19937& random) {
  const auto upTo = [&](std::size_t n) { return static_cast<std::size_t>(random() % n); };
  std::string text = corpus[upTo(corpus.size())];
  for (std::size_t changes = 1 + upTo(6); changes > 0; --changes) {
    const std::size_t at = upTo(text.size() + 1);
    const std::size_t length = upTo(6);
    switch (upTo(4)) {
      case 0:
        text.insert(at, pieces[upTo(pieces.size())]);
        break;
      case 1:
        text.erase(at, length);
        break;
      case 2:
        text.replace(at, length, pieces[upTo(pieces.size())]);
        break;
      default:
        text.insert(at, 1, static_cast<char>(random()));
        break;
    }
  }
  return text;
}

}  // namespace

int runCorpus(int argc, char** argv, std::span<const std::string> pieces, void (*check)(std::string_view)) {
  if (argc != 3) return std::fprintf(stderr, "%s FOLDER COUNT\n", argv[0]), 2;
  const auto corpus = corpusOf(argv[1]);
  if (corpus.empty()) return std::fprintf(stderr, "nothing in %s\n", argv[1]), 1;
  long runs = 0;
  for (const std::string& text : corpus)
    for (std::size_t length = 0; length <= std::min(text.size(), kMostCuts); ++length, ++runs)
      check(std::string_view(text).substr(0, length));
  std::mt19937 random(1);
  for (long count = std::atol(argv[2]); count > 0; --count, ++runs) check(mutated(corpus, pieces, random));
  std::printf("%ld inputs\n", runs);
  return 0;
}

}  // namespace zelko::test
