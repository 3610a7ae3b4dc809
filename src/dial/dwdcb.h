// The settings of a serial port. A value that is not accepted raises a SerialError from "dwDCB" and changes nothing.
#pragma once

#include <cstdint>

#include "dial/serialerror.h"

namespace zelko {

// A property with a check in front of it.
template <class T>
class CheckedSetting {
 public:
  CheckedSetting(T value, bool (*accepts)(T), TextView complaint)
      : value_(value), accepts_(accepts), complaint_(complaint) {}
  operator T() const { return value_; }
  CheckedSetting& operator=(T value) {
    if (!accepts_(value)) throw SerialError{u"dwDCB", Text(complaint_)};
    value_ = value;
    return *this;
  }

 private:
  T value_;
  bool (*accepts_)(T);
  TextView complaint_;
};

class dwDCB {
 public:
  static constexpr std::int32_t kLength = 28;  // of the structure
  static constexpr bool fBinary = true;

  CheckedSetting<std::int32_t> BaudRate{2400, isBaudRate, u"Invalid baud rate"};
  bool fParity = false, fOutxCtsFlow = false, fOutxDsrFlow = false;
  CheckedSetting<std::int32_t> fDtrControl{0, isDtrControl, u"Invalid fDtrControl setting"};
  bool fDsrSensitivity = false, fTXContinueOnXoff = false, fOutX = false, fInX = false, fErrorChar = false,
       fNull = false;
  CheckedSetting<std::int32_t> fRtsControl{0, isRtsControl, u"Invalid fRtsControl setting"};
  bool fAbortOnError = false;
  std::int32_t XonLim = 100, XoffLim = 100;  // bytes
  CheckedSetting<std::int32_t> ByteSize{8, isByteSize, u"Invalid Byte size setting"};
  CheckedSetting<std::int32_t> Parity{0, isParity, u"Invalid Parity setting"};
  CheckedSetting<std::int32_t> StopBits{0, isStopBits, u"Invalid Stop bits"};
  char XonChar = '\x11', XoffChar = '\x13', ErrorChar = '~', EofChar = '\x1A', EvtChar = '\0';

 private:
  static bool isBaudRate(std::int32_t baud);
  static bool isDtrControl(std::int32_t code) { return code >= 0 && code <= 2; }
  static bool isRtsControl(std::int32_t code) { return code >= 0 && code <= 3; }
  static bool isByteSize(std::int32_t bits) { return bits >= 4 && bits <= 8; }
  static bool isParity(std::int32_t code) { return code >= 0 && code <= 4; }
  static bool isStopBits(std::int32_t code) { return code >= 0 && code <= 2; }
};

}  // namespace zelko
