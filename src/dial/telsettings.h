// What dialling keeps: zlkTEL (how, and through which port) and zlkPORT (which devices stand for the ports), in appDir.
#pragma once

#include <array>

#include "platform/text/text.h"

namespace zelko {

struct TelSettings {
  bool tone = true;
  int port = 2;  // 1 to 3

  bool operator==(const TelSettings&) const = default;
};
using PortDevices = std::array<Text, 3>;  // of COM1 to COM3; empty: the first devices of the machine

// What is not there or can't be read is as at the start.
TelSettings readTelSettings();
PortDevices readPortDevices();
// False where not all of it was stored.
bool writeTelSettings(const TelSettings& settings);
bool writePortDevices(const PortDevices& devices);

}  // namespace zelko
