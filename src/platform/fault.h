// A run-time fault: a limit of the system was passed (subscript, overflow, division by zero, a halt).
#pragma once

#include <string>

namespace zelko {

// Thrown where the limit is passed and caught only at the outermost event loop: files are closed, the
// user hears `text`, the program ends with a non-zero status.
struct Fault {
  std::u16string text;
};

}  // namespace zelko
