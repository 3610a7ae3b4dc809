// A serial port: opened by name, set, written to in pieces, polled for what arrives. Failures are raised as SerialError
// from "dwComm".
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "dial/dwdcb.h"
#include "platform/host.h"

namespace zelko {

// What the owner of a port hears of it: an error of the line, in words.
using CommEvent = std::function<void(TextView event)>;

class dwComm {
 public:
  static constexpr std::size_t kWriteSize = 1024;
  static constexpr std::int32_t kQueueIn = 8192, kQueueOut = 1024;  // bytes

  // Milliseconds; nothing of it makes a read or a write of ours wait.
  std::int32_t ReadIntervalTimeout = 0, ReadTotalTimeoutMultiplier = 0, ReadTotalTimeoutConstant = 0,
               WriteTotalTimeoutMultiplier = 0, WriteTotalTimeoutConstant = 0;

  // "COM1" to "COM3", exclusively. `device` is the one that stands for it where the environment names none; empty for
  // the first ones of the machine.
  void OpenComm(TextView name, CommEvent owner = {}, TextView device = {});
  void CloseComm();
  bool hCommDev() const { return port_ != nullptr; }
  const Text& DeviceName() const { return name_; }

  const dwDCB& GetCommState() const { return state_; }
  void SetCommState(const dwDCB& state);

  bool CTS_ON() const { return lineIsOn(SerialPort::kCts); }
  bool DSR_ON() const { return lineIsOn(SerialPort::kDsr); }
  bool RING_ON() const { return lineIsOn(SerialPort::kRing); }
  bool RLSD_ON() const { return lineIsOn(SerialPort::kRlsd); }

  // Shift-JIS goes behind what is still to be sent, and out as far as the device takes it.
  void CommOutput(TextView text);
  void PollWrite();
  // What has arrived; empty where nothing has.
  std::string PollRead();
  // Errors of the line to the owner, then what waits to be written.
  void Poll();

 private:
  bool lineIsOn(unsigned line) const;
  void ProcessWriteComplete(std::size_t sent);

  std::unique_ptr<SerialPort> port_;
  Text name_;
  dwDCB state_;
  CommEvent owner_;
  std::string pending_;
};

}  // namespace zelko
