// A user at a small table with the commands of the clip file and of the formulas at hand.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "platform/text/text.h"
#include "session.h"

namespace zelko::test {

// Three records of an ID, a name, a right-justified number and a remark, read by ear at level 1.
struct ClipSession : Session {
  ClipSession();

  void select(std::int16_t kind, std::int32_t rec1, std::int32_t rec2, std::int16_t item1, std::int16_t item2);
  // Another data file under the open table, which is shown anew.
  void replaceData(const std::string& bytes);
  void cursorTo(std::int32_t record, std::int16_t item);
  // The clip file, given with LF at its line ends, and in UTF-8.
  void writeClip(std::string text) const;
  // A file of the folder with LF at its line ends, in UTF-8.
  std::string file(const std::string& name) const;
  std::string cells(int number) const { return toUtf8(record(number)); }
  std::vector<std::string> table() const;
  // What `show WHAT` prints.
  std::string show(const std::string& what);

  std::filesystem::path data() const { return folder() / "t.txt"; }
};

bool holds(const std::string& text, std::string_view part);

}  // namespace zelko::test
