// A user at the file picker, in a folder with a table or two.
#pragma once

#include "files/picker/picker.h"
#include "session.h"

namespace zelko::test {

class FilesFixture : public Session {
 public:
  // Two items, one record that holds the name.
  Text table(TextView name);
  // Opens the picker for a job, from the main form where one is open.
  void pick(PickFor purpose);
  // A line of a replay script each; what was heard: sentences, "beep" and "end", joined by " / ", with "~" for the
  // folder of the test.
  std::string play(const std::vector<std::string>& lines);
  std::string heard();
};

}  // namespace zelko::test
