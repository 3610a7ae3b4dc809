#include "dial/dwdcb.h"

#include <algorithm>
#include <array>

namespace zelko {

bool dwDCB::isBaudRate(std::int32_t baud) {
  constexpr std::array<std::int32_t, 15> kRates = {110,   300,   600,   1200,  2400,   4800,   9600,  14400,
                                                   19200, 38400, 56000, 57600, 115200, 128000, 256000};
  return std::find(kRates.begin(), kRates.end(), baud) != kRates.end();
}

}  // namespace zelko
