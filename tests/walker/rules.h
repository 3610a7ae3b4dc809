// What must hold after whatever a user did.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "walker/choices.h"

namespace zelko::test {

class Rules {
 public:
  // Of a walk in the current folder, which holds the tables.
  explicit Rules(Manner manner) : manner_(manner) {}
  void heard(std::string_view line) { heard_.emplace_back(line); }
  // `line` is about to be played.
  void before(const std::string& line);
  // The rule that no longer holds, in words that are the same each time; empty where all hold.
  std::string broken();
  // Once the program has ended: every table opens.
  static std::string brokenAtTheEnd();

 private:
  std::string brokenByFiles();
  std::string brokenBySilence() const;

  Manner manner_;
  std::string line_, place_, state_;  // the last line, where the focus was, and what stood there
  bool otherVoice_ = false;           // the talking character, or another time between sentences, was chosen
  bool namesFile_ = false;            // a name for a file may have been typed
  bool burst_ = false;                // no time passes between the lines
  std::vector<std::string> heard_;
  std::map<std::string, std::string> first_;  // the files when nothing had been done
};

}  // namespace zelko::test
