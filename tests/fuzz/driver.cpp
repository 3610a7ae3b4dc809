// The plain driver: the committed inputs of a target, each cut off at every byte, and mutations of them:
// zelko_fuzz TARGET|all CORPUS COUNT [SEED]

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <vector>

#include "fuzz/target.h"

namespace zelko::test {

namespace {

constexpr std::size_t kMostCuts = 400;  // of one input

std::vector<std::string> corpusOf(const std::filesystem::path& folder) {
  std::set<std::filesystem::path> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) names.insert(entry.path());
  std::vector<std::string> texts;
  for (const auto& name : names) {
    std::ifstream in(name, std::ios::binary);
    texts.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }
  return texts;
}

std::string mutated(const std::vector<std::string>& corpus, const std::vector<std::string>& pieces,
                    std::mt19937& random) {
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

// What was being read when the process ends by itself, so that it can be looked at.
std::string current;
std::string currentName;
void keepInput(int signal) {
  std::ofstream("zelko-fuzz-" + currentName, std::ios::binary) << current;
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

void check(const FuzzTarget& target, std::string input) {
  current = std::move(input);
  target.check(current);
}

bool runTarget(const FuzzTarget& target, const std::filesystem::path& folder, long count, unsigned seed) {
  currentName = target.name;
  const auto corpus = corpusOf(folder / target.name);
  if (corpus.empty()) return std::fprintf(stderr, "nothing in %s\n", (folder / target.name).c_str()), false;
  long runs = 0;
  for (const std::string& text : corpus)
    for (std::size_t length = 0; length <= std::min(text.size(), kMostCuts); ++length, ++runs)
      check(target, text.substr(0, length));
  std::mt19937 random(seed);
  for (; count > 0; --count, ++runs) check(target, mutated(corpus, target.pieces, random));
  std::printf("%s: %ld inputs\n", target.name.c_str(), runs);
  return true;
}

}  // namespace
}  // namespace zelko::test

int main(int argc, char** argv) {
  using namespace zelko::test;
  if (argc < 4) return std::fprintf(stderr, "%s TARGET|all CORPUS COUNT [SEED]\n", argv[0]), 2;
  std::signal(SIGABRT, keepInput);
  std::signal(SIGSEGV, keepInput);
  int found = 0;
  for (const FuzzTarget& target : fuzzTargets()) {
    if (std::string(argv[1]) != "all" && target.name != argv[1]) continue;
    ++found;
    if (!runTarget(target, argv[2], std::atol(argv[3]), argc > 4 ? static_cast<unsigned>(std::atol(argv[4])) : 1))
      return 1;
  }
  return found > 0 ? 0 : 2;
}
