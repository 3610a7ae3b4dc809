// Loaded in front of the program: lets the call die or fail that the environment names, ZELKO_FAULT="MODE CALL ERRNO",
// and leaves the numbers of calls and of reads in the file ZELKO_CALLS.
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "store/rewrite/file_calls.h"

namespace {

using namespace zelko::test;

struct Watch {
  Watch() {
    const char* fault = std::getenv("ZELKO_FAULT");
    char mode[16] = "";
    int call = 0, error = 0;
    if (fault == nullptr || std::sscanf(fault, "%15s %d %d", mode, &call, &error) < 2) return;
    if (std::strcmp(mode, "kill") == 0) dieAtCall(call);
    if (std::strcmp(mode, "fail") == 0) failAtCall(call, error);
    if (std::strcmp(mode, "from") == 0) failFromCall(call, error);
    if (std::strcmp(mode, "read") == 0) failAtRead(call);
    if (std::strcmp(mode, "short") == 0) fallShortAtCall(call);
  }
  ~Watch() {
    const int calls = stopCounting();
    const char* name = std::getenv("ZELKO_CALLS");
    if (name == nullptr) return;
    if (FILE* file = std::fopen(name, "w")) {
      std::fprintf(file, "%d %d\n", calls, reads());
      std::fclose(file);
    }
  }
} watch;

}  // namespace
