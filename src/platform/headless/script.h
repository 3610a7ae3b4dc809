// A replay script: one action a line, all of them understood before the first is played.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/keys.h"
#include "platform/headless/recorders.h"
#include "platform/text/daytime.h"
#include "platform/text/text.h"

namespace zelko {

enum class Verb {
  key,
  type,
  commit,
  compose,
  menu,
  click,
  dblclick,
  ctrlDblclick,
  focus,
  wait,
  step,
  clock,
  seed,
  clipboard,
  printer,
  port,
  later,
  show,
  expect
};

struct Action {
  Verb verb = Verb::key;
  int line = 0;  // of the script, from 1
  KeyEvent key;
  Text text;  // also the name of a menu entry and what is to be shown
  Text form, control;
  int index = -1;
  std::int64_t number = 0;               // milliseconds, a seed, a count, of a port
  PortState state = PortState::present;  // of a port, or of the printer
  DateTime when;
  std::shared_ptr<Action> then;  // of `later`
};

struct ScriptError {
  int line;
  std::string reason;
};

// `type` becomes one action a character, so that each goes to the form that is open by then. Throws ScriptError.
std::vector<Action> parseScript(std::string_view bytes);

// "Form1.Option1(2)" into its parts; false where it is none.
bool parseControlName(TextView word, Text& form, Text& control, int& index);

}  // namespace zelko
