// A user at random: walks on random tables, each in a process of its own, until so many actions or seconds are over.
//   zelko_walker [--actions N | --seconds N] [--seed N] [--out FOLDER] [--finds N]
// A find ends its walk, is cut down to the few lines that still bring it about, and becomes FOLDER/<n>:
// script.txt and before/, to be played with
//   zelko --replay script.txt --dir before t.txt
// A million actions: zelko_walker --actions 1000000. The exit status is 1 where something was found.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <string_view>

#include "app/wiring.h"
#include "walker/tables.h"
#include "walker/walk.h"

namespace {

using namespace zelko::test;
namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

struct Options {
  long actions = 0, seconds = 0, mostFinds = 20;
  unsigned seed = 1;
  fs::path out = "walker-finds";
};

bool readOptions(int argc, char** argv, Options& options) {
  for (int at = 1; at < argc; at += 2) {
    if (at + 1 == argc) return false;
    const std::string_view name = argv[at];
    const char* value = argv[at + 1];
    if (name == "--actions")
      options.actions = std::atol(value);
    else if (name == "--seconds")
      options.seconds = std::atol(value);
    else if (name == "--seed")
      options.seed = static_cast<unsigned>(std::atol(value));
    else if (name == "--out")
      options.out = value;
    else if (name == "--finds")
      options.mostFinds = std::atol(value);
    else
      return false;
  }
  return options.actions > 0 || options.seconds > 0;
}

void keep(const WalkPlan& plan, const std::string& find, const fs::path& folder) {
  fs::create_directories(folder / "before");
  std::mt19937 random(plan.seed);
  makeRandomTables(folder / "before", random);
  std::ofstream script(folder / "script.txt");
  script << "# " << find << "\n# table t.txt\n";
  for (const std::string& line : *plan.lines) script << line << "\n";
  std::printf("  %s: %s\n", folder.c_str(), find.c_str());
  std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  if (!readOptions(argc, argv, options)) return std::fprintf(stderr, "zelko_walker --actions N | --seconds N ...\n"), 2;
  zelko::wireProgram();
  std::set<std::string> finds;
  const auto end = Clock::now() + std::chrono::seconds(options.seconds);
  long actions = 0, walks = 0;
  for (unsigned seed = options.seed; options.actions > 0 ? actions < options.actions : Clock::now() < end; ++seed) {
    const WalkPlan plan{seed, seed % 4 == 0 ? Manner::onlyLooking : Manner::anything};
    const Walked walked = walk(plan);
    actions += static_cast<long>(walked.lines.size());
    ++walks;
    if (walked.lines.empty()) return std::printf("the walk of seed %u never began: %s\n", seed, walked.find.c_str()), 2;
    if (walked.find.empty() || !finds.insert(walked.find).second) continue;
    keep(minimised(plan, walked), walked.find, options.out / std::to_string(finds.size()));
    if (static_cast<long>(finds.size()) >= options.mostFinds) break;
  }
  std::printf("walker: %ld actions in %ld walks, %zu finds\n", actions, walks, finds.size());
  return finds.empty() ? 0 : 1;
}
