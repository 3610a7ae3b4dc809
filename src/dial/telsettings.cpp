#include "dial/telsettings.h"

#include "platform/files/linefile.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr std::int64_t kLongestFile = 4096;
constexpr std::size_t kLongestDevice = 250;
constexpr TextView kPorts[] = {u"COM1", u"COM2", u"COM3"};

}  // namespace

TelSettings readTelSettings() {
  TelSettings settings;
  const auto lines = readValueLines(appDir + u"zlkTEL", kLongestFile);
  if (!lines || lines->size() < 2) return settings;
  settings.tone = trimmed((*lines)[0]) != u"PULSE";
  for (int port = 1; port <= 3; ++port) {
    if (trimmed((*lines)[1]) == kPorts[port - 1]) settings.port = port;
  }
  return settings;
}

bool writeTelSettings(const TelSettings& settings) {
  return writeValueLines(appDir + u"zlkTEL", {settings.tone ? u"TONE" : u"PULSE", Text(kPorts[settings.port - 1])}) ==
         FileError::none;
}

PortDevices readPortDevices() {
  PortDevices devices;
  const auto lines = readValueLines(appDir + u"zlkPORT", kLongestFile);
  if (!lines) return devices;
  for (std::size_t port = 0; port < devices.size() && port < lines->size(); ++port) {
    const Text device = trimmed((*lines)[port]);
    if (device.starts_with(u'/') && device.size() <= kLongestDevice) devices[port] = device;
  }
  return devices;
}

bool writePortDevices(const PortDevices& devices) {
  return writeValueLines(appDir + u"zlkPORT", {devices.begin(), devices.end()}) == FileError::none;
}

}  // namespace zelko
