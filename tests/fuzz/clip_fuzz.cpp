// Clip file, backup and formula under a fuzzer.
#include <cstddef>
#include <cstdint>

#include "fuzz/clip_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zelko::test::checkByKind({reinterpret_cast<const char*>(data), size});
  return 0;
}
