// The whole program in front of a user: wired once, and as it is before anything was done.
#pragma once

#include <doctest/doctest.h>

#include <string>
#include <vector>

#include "fixture.h"

namespace zelko::test {

// The one reset: tables, cursor, editor, clip and speech as at the start, speech at level 2, and `appDir` as told. A
// floor that keeps a state of its own adds its reset here.
void resetProgram(const std::filesystem::path& appFolder);

using Rows = std::vector<std::vector<Text>>;

class Session : public Fixture {
 public:
  Session() { resetProgram(folder()); }

  // Enters the editor on a table; what is heard meanwhile is forgotten.
  void edit(const Text& dataFile);
  // Makes the table "t" in the test's folder and enters the editor at the given speech level.
  void open(const std::vector<ItemOfTable>& items, const Rows& rows, int level = 2);

  std::string path(std::string_view name) const { return (folder() / name).string(); }
  std::string file(std::string_view name) const { return readBytes(folder() / name); }
  bool exists(const std::string& name) const { return std::filesystem::exists(folder() / name); }
};

}  // namespace zelko::test
