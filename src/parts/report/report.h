// The result file that the analyses share: KEKKA.TXT in a folder of the user's choice, Shift-JIS, lines ending in CR
// LF.
#pragma once

#include <cstdint>

#include "platform/files/ownedfile.h"
#include "platform/text/printline.h"
#include "platform/text/text.h"

namespace zelko {

// A report that goes out of scope open is closed; a failure is not told any more.
class Report {
 public:
  // Opens KEKKA.TXT in the folder, in whatever case it stands there, to write behind what it holds, or `anew` in its
  // place. False after a message: it can't be opened, or it is a file of a table.
  bool open(TextView folder, bool anew);
  void line(TextView text);
  void line(const PrintLine& pieces) { line(pieces.line()); }
  // Title, file name, date and time of a report on the open table.
  void head(TextView title);
  // The lines of that head.
  const Text& headText() const { return head_; }
  // False after a message where not all of it reached the file.
  bool close();
  const Text& path() const { return path_; }
  // Characters of this report so far, its line ends too.
  std::size_t written() const { return written_; }

 private:
  Text path_, head_;
  OwnedFile file_;
  std::size_t written_ = 0;
  bool failed_ = false;
};

// The second and the third line of that head, for reports that order theirs otherwise.
Text fileLine();
Text timeLine();

// The two forms of the line that tells which records a report covers.
PrintLine recordsOfAccess(std::int32_t first, std::int32_t last);
PrintLine recordsOfGroups(std::int32_t first, std::int32_t last);

// KEKKA.TXT of that folder, as it stands there.
Text resultFile(TextView folder);

}  // namespace zelko
