// The command line of the program.
#pragma once

#include <string>
#include <vector>

namespace zelko {

struct CommandLine {
  // keepClipboard: what the program starts itself with, at its end.
  // manual: the manual as a page, for the package.
  enum class Action { run, replay, help, version, keepClipboard, manual, wrong };
  Action action = Action::run;
  std::string script;     // of --replay; "-" is standard input
  std::string folder;     // of --dir and --manual; empty: the current one
  std::string table;      // empty: the start screen
  bool reader = true;     // --no-reader
  std::string complaint;  // what is wrong
};

// `arguments` without the program's name. "--" ends the options, so that a table may begin with "-".
CommandLine readCommandLine(const std::vector<std::string>& arguments);

// What --help prints, in the language of the user.
const char* usage();

}  // namespace zelko
