// The two speech settings that outlive a run, each a number on one line.
#include "platform/fault.h"
#include "platform/files/workfiles.h"
#include "platform/text/number.h"
#include "platform/text/printline.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kFile = 2;
constexpr std::int64_t kLongestFile = 4096;

// A number outside 0 to `highest`, like a file that can't be read, is no setting.
std::int16_t readSetting(TextView name, std::int16_t highest) {
  if (openInput(kFile, appDir + Text(name), kLongestFile) != FileError::none) return 0;
  Text field;
  const FileError error = readField(kFile, field);
  closeFile(kFile);
  if (error != FileError::none) return 0;
  try {
    const std::int16_t value = toInt16(val(field));
    return value >= 0 && value <= highest ? value : std::int16_t{0};
  } catch (const Fault&) {
    return 0;
  }
}

void writeSetting(TextView name, std::int16_t value) {
  const Text file = appDir + Text(name);
  if (isLink(file)) removeOwnName(file);  // what it leads to is not the program's to write
  if (openOutput(kFile, file) != FileError::none) return;
  printLine(kFile, PrintLine().number(value).line());
  closeFile(kFile);
}

}  // namespace

void readSpeechSettings() {
  agentOn = readSetting(u"mAgent", 1);
  talkMode = readSetting(u"zlkTalk", 2);
}

void writeSpeechSettings() {
  writeSetting(u"zlkTalk", talkMode);
  writeSetting(u"mAgent", agentOn);
}

}  // namespace zelko
