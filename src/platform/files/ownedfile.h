// A numbered file with an owner: it takes a free number, so that no two jobs ever close each other's file.
#pragma once

#include "platform/files/files.h"

namespace zelko {

// Closes its file when it goes. The numbers 1 to 4 keep their fixed uses and are never taken. closeAll closes owned
// files too: their owners then hold none.
class OwnedFile {
 public:
  OwnedFile() = default;
  ~OwnedFile() { close(); }
  OwnedFile(OwnedFile&& other) noexcept;
  OwnedFile& operator=(OwnedFile&& other) noexcept;

  // As the procedures of files.h; a file that is still held is closed first. tooMany where no number is free.
  FileError openRandom(TextView path, int recordLength);
  FileError createRandom(TextView path, int recordLength);
  FileError openToRead(TextView path, int recordLength);
  FileError openInput(TextView path, std::int64_t most = kNoBound, std::size_t longestLine = kLongestLine);
  FileError openOutput(TextView path);
  FileError openNewOutput(TextView path);  // as in workfiles.h
  FileError openAppend(TextView path);
  // The error of what was still to be written.
  FileError close();

  // For the procedures that take a number; 0 while no file is held.
  int number() const;
  bool isOpen() const { return number() != 0; }

 private:
  template <class Opening>
  FileError take(Opening opening);

  int number_ = 0;
  std::uint64_t opening_ = 0;  // which opening of that number is held
};

}  // namespace zelko
