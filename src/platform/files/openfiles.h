// The table of numbered files, shared by the sources behind files.h; nobody else includes it.
#pragma once

#include <cstdint>
#include <string>

#include <sys/types.h>

#include "platform/files/files.h"
#include "platform/files/readwindow.h"

namespace zelko {

struct OpenFile {
  enum class Use { closed, random, input, output };

  Use use = Use::closed;
  int descriptor = -1;
  std::uint64_t opening = 0;  // no two openings have the same
  bool regular = false;       // not a device such as a printer port
  dev_t device = 0;
  ino_t inode = 0;

  // Random access.
  bool writable = false;
  int recordLength = 0;
  std::int32_t lastRecord = 0;
  ReadWindow window;

  // Text: bytes read and not yet taken, or bytes to be written.
  std::string buffer;
  std::size_t taken = 0;
  std::int64_t left = kNoBound;  // bytes that may still be read
  std::size_t longestLine = kLongestLine;
  bool replaces = false;  // old contents still lie behind what is written
  std::int64_t written = 0;
  FileError error = FileError::none;
};

// The file of that number where it is open for that use, else null.
OpenFile* openFile(int number, OpenFile::Use use);
// Which opening of the number stands; 0 while it is closed.
std::uint64_t openingOf(int number);
// Whether its records may be written now: not where the owner's write bit is off or the file was deleted.
FileError mayWrite(const OpenFile& file);
// Called for every write past the record procedures: what the windows hold may have changed.
void dropWindows();
// Patches the windows of all numbers under which the same file is open.
void patchWindows(const OpenFile& file, std::int64_t offset, const char* bytes, std::size_t size);

// Writes what is buffered. At the last flush an old file is cut to its new length; before, it is emptied when the
// first full buffer goes out, so that a short file is replaced by one write and never stands empty.
FileError flushText(OpenFile& file, bool last);

FileError errorOfErrno(int number);
FileError writeAll(int descriptor, const char* bytes, std::size_t size, std::int64_t& written);
// The name as the system takes it; empty where there is none (a NUL inside).
std::string nativePath(TextView path);

}  // namespace zelko
