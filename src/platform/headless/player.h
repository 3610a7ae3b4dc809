// Plays the actions of a script on the headless host, and keeps what was heard for `expect`.
#pragma once

#include <string>
#include <vector>

#include "platform/headless/headless_host.h"
#include "platform/headless/script.h"

namespace zelko {

class TextBox;

class Player {
 public:
  Player(HeadlessHost& host, std::vector<Action> script, Text mainForm);

  // Plays the next action; false where there is none. Throws ScriptError for one that can't be played now.
  bool next();
  // Plays one action that stands in no script of this player.
  void play(const Action& action);
  // What the transcript takes passes by here.
  void heard(std::string_view line);
  bool expectFailed() const { return expectFailed_; }

 private:
  void act(const Action& action);
  void later(const Action& action);
  void type(const Action& action);
  void commit(const Action& action);
  void compose(const Action& action);
  void chooseMenu(const Action& action);
  void point(const Action& action);
  TextBox& activeBox(const Action& action) const;
  void expect(const Action& action);

  HeadlessHost& host_;
  std::vector<Action> script_;
  std::size_t at_ = 0;
  Text mainForm_;
  std::int64_t step_ = 1000;
  bool expects_ = false, expectFailed_ = false;
  std::vector<std::string> heard_;  // since the last expect
};

}  // namespace zelko
