// The item file under a fuzzer that looks for new ways through the reader.
#include <cstddef>
#include <cstdint>

#include "fuzz/itemfile_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zelko::test::checkItemFile({reinterpret_cast<const char*>(data), size});
  return 0;
}
