// The program: on the desktop, or a script without a screen.
#include <csignal>
#include <filesystem>
#include <iostream>
#include <system_error>

#include "app/commandline.h"
#include "app/desktop/start.h"
#include "app/wiring.h"
#include "files/manual/manual.h"
#include "platform/headless/replay.h"

namespace {

using namespace zelko;

constexpr int kWrongUse = 2;

int wrongUse(const std::string& complaint) {
  std::cerr << "zelko: " << complaint << "\n" << usage();
  return kWrongUse;
}

// The script's name counts from the folder of the start, not from the program's folder.
std::string fromHere(const std::string& script) {
  return script == "-" ? script : std::filesystem::absolute(script).string();
}

int replay(const CommandLine& line) {
  ReplayOptions options;
  options.script = fromHere(line.script);
  if (!line.folder.empty()) {
    std::error_code failed;
    std::filesystem::current_path(line.folder, failed);
    if (failed) return wrongUse("no such folder: " + line.folder);
  }
  return runReplay(options, [&] {
    wireProgram();
    startProgram(fromUtf8(line.table));
  });
}

}  // namespace

int main(int argc, char** argv) {
  std::signal(SIGXFSZ, SIG_IGN);  // a full disk is told to the user, it does not end the program
  const CommandLine line = readCommandLine({argv + 1, argv + argc});
  switch (line.action) {
    case CommandLine::Action::wrong:
      return wrongUse(line.complaint);
    case CommandLine::Action::help:
      std::cout << usage();
      return 0;
    case CommandLine::Action::version:
      std::cout << "zelko " << ZELKO_VERSION << "\n";
      return 0;
    case CommandLine::Action::manual:
      std::cout << manualHtml(manualBlocks(fromUtf8(line.folder) + u"/"));
      return 0;
    case CommandLine::Action::replay:
      return replay(line);
    case CommandLine::Action::run:
    case CommandLine::Action::keepClipboard:
      break;
  }
  return startOnDesktop(argc, argv, line);
}
