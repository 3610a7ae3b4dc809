#include "app/desktop/start.h"

#include <cstdlib>
#include <iostream>
#include <memory>

#include "app/wiring.h"
#include "platform/qt/desktop.h"
#include "platform/qt/keeper.h"
#include "speech/reader.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kNoDisplay = 1;
constexpr std::chrono::seconds kLastSentence{3};

bool hasDisplay() {
  const auto set = [](const char* name) {
    const char* value = std::getenv(name);
    return value && *value;
  };
  return set("DISPLAY") || set("WAYLAND_DISPLAY") || set("QT_QPA_PLATFORM");
}

// The reader that takes each sentence where no other program reads the clipboard.
void connectReader(Reader& reader) {
  DesktopHooks& hooks = desktopHooks();
  hooks.onSentence = [&reader, told = false](TextView sentence) mutable {
    reader.say(sentence);
    if (told || reader.serviceFound()) return;
    told = true;
    std::cerr << "zelko: no speech service answers; the sentences stand on the clipboard only\n";
  };
  hooks.onAgent = [&reader](TextView sentence) { reader.agent(sentence); };
  hooks.onAgentStop = [&reader] { reader.stop(); };
  hooks.onEnd = [&reader] { reader.settled(kLastSentence); };
}

}  // namespace

int startOnDesktop(int argc, char** argv, const CommandLine& line) {
  if (!hasDisplay()) {
    std::cerr << "zelko: there is no display; --replay SCRIPT plays a session without one\n";
    return kNoDisplay;
  }
  if (line.action == CommandLine::Action::keepClipboard) return keepClipboard(argc, argv);
  desktopHooks().speaks = [] { return talkMode != 0; };
  std::unique_ptr<Reader> reader;
  if (line.reader) {
    reader = std::make_unique<Reader>();
    connectReader(*reader);
  }
  return runDesktop(argc, argv, [&] {
    wireProgram();
    startProgram(fromUtf8(line.table));
  });
}

}  // namespace zelko
