// The result file that the analyses share: KEKKA.TXT in a folder of the user's choice, Shift-JIS, lines ending in CR
// LF.
#pragma once

#include <cstdint>

#include "platform/text/printline.h"
#include "platform/text/text.h"

namespace zelko {

class Report {
 public:
  static constexpr int kFile = 2;  // the number it is open under

  Report() = default;
  // Closes it; a failure is not told any more.
  ~Report();
  Report(const Report&) = delete;
  Report& operator=(const Report&) = delete;

  // Opens KEKKA.TXT in the folder, in whatever case it stands there, to write behind what it holds, or `anew` in its
  // place. False after a message: it can't be opened, or it is a file of a table.
  bool open(TextView folder, bool anew);
  void line(TextView text);
  void line(const PrintLine& pieces) { line(pieces.line()); }
  // Title, file name, date and time of a report on the open table.
  void head(TextView title);
  // False after a message where not all of it reached the file.
  bool close();
  const Text& path() const { return path_; }

 private:
  Text path_;
  bool open_ = false, failed_ = false;
};

// The two forms of the line that tells which records a report covers.
PrintLine recordsOfAccess(std::int32_t first, std::int32_t last);
PrintLine recordsOfGroups(std::int32_t first, std::int32_t last);

// KEKKA.TXT of that folder, as it stands there.
Text resultFile(TextView folder);

}  // namespace zelko
