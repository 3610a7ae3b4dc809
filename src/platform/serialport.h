// The serial ports of this machine.
#pragma once

#include <memory>
#include <string>

#include "platform/host.h"

namespace zelko {

// The device of port 1 to 3: what ZELKO_COM1 to ZELKO_COM3 name, else `chosen`, else /dev/ttyS0 to /dev/ttyS2.
std::string serialDevice(int port, const std::string& chosen = {});
// Opened for this program alone, with 9600 baud, no parity, 8 bits, 1 stop bit, every byte passed as it is. Null where
// it can't be opened.
std::unique_ptr<SerialPort> openSerialDevice(const std::string& device);

}  // namespace zelko
