// The target that ZELKO_FUZZ_TARGET names, under a fuzzer that looks for new ways through the code.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "fuzz/target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const zelko::test::FuzzTarget* target = [] {
    const char* name = std::getenv("ZELKO_FUZZ_TARGET");
    for (const auto& known : zelko::test::fuzzTargets()) {
      if (name && known.name == name) return &known;
    }
    std::fprintf(stderr, "ZELKO_FUZZ_TARGET names one of these:\n");
    for (const auto& known : zelko::test::fuzzTargets()) std::fprintf(stderr, "  %s\n", known.name.c_str());
    std::exit(2);
  }();
  target->check({reinterpret_cast<const char*>(data), size});
  return 0;
}
