// Stands in where the program is built without Qt or without the reader.
#include <iostream>

#include "app/desktop/start.h"

namespace zelko {

int startOnDesktop(int, char**, const CommandLine&) {
  std::cerr << "zelko: built without a desktop; --replay SCRIPT plays a session without one\n";
  return 1;
}

}  // namespace zelko
