// The one way to write an output table: records behind those that are there, or a file of its own.
#pragma once

#include <string>

#include "platform/files/ownedfile.h"
#include "store/table/table.h"

namespace zelko {

// What was written is taken back unless `keep` is called: also after a write that failed, on a full disk, at a stop and
// when the appender goes. The file then has its length and bytes again, or is gone where there was none.
class RecordAppender {
 public:
  RecordAppender() = default;
  ~RecordAppender() { takeBack(); }
  RecordAppender(const RecordAppender&) = delete;
  RecordAppender& operator=(const RecordAppender&) = delete;

  // A file that must not stand there yet, not even as a link.
  FileError create(const Text& fullName);
  // Behind the whole records of that file (a short tail makes room), which is made where there is none.
  FileError open(const Text& fullName);

  // 256 bytes go out as they stand; fewer are padded with blanks to 254 and get CR LF. False once a write has failed.
  bool append(std::string_view record);
  std::int32_t appended() const { return appended_; }

  // All of it is on the disk; false where it is not. The file stays open for takeBack.
  bool finish();
  // The output is whole, with all that belongs to it: it stays, and is closed.
  void keep();
  void takeBack();

 private:
  FileError begin(bool made);
  bool write();

  OwnedFile file_;
  Text fullName_;
  bool made_ = false, failed_ = false;
  std::int64_t length_ = 0;   // before
  std::int64_t written_ = 0;  // up to where
  std::string tail_;          // what was no whole record at its end
  std::string waiting_;
  std::int32_t appended_ = 0;
};

}  // namespace zelko
