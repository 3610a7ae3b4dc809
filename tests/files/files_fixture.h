// A user at the file picker, in a folder with a table or two.
#pragma once

#include <doctest/doctest.h>

#include "files/picker/picker.h"
#include "fixture.h"

namespace zelko::test {

class FilesFixture : public Fixture {
 public:
  // The program's folder is the test's; speech at level 2; no form is open.
  FilesFixture();

  // Two items, one record that holds the name.
  Text table(TextView name);
  // Enters the editor on a table; what is heard meanwhile is forgotten.
  void edit(const Text& dataFile);
  // Opens the picker for a job, from the main form where one is open.
  void pick(PickFor purpose);
  // A line of a replay script each; what was heard: sentences, "beep" and "end", joined by " / ", with "~" for the
  // folder of the test.
  std::string play(const std::vector<std::string>& lines);
  std::string heard();

  std::string path(const std::string& name) const { return (folder() / name).string(); }
  bool exists(const std::string& name) const { return std::filesystem::exists(folder() / name); }
};

}  // namespace zelko::test
