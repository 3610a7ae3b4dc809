// A CSV file on the disk: read line by line, its code recognised.
#pragma once

#include <optional>

#include "files/csv/csvreader.h"
#include "platform/files/ownedfile.h"

namespace zelko {

// Asked now and then with the bytes of the lines that are done; false stops.
using CsvGoesOn = std::function<bool(std::int64_t bytes)>;

class CsvFile {
 public:
  // Opens the file; false where that can't be done.
  bool open(const Text& path);
  std::int64_t length() const { return length_; }
  // Looks through the file for its code, as long as it may be UTF-8; false where it was stopped.
  bool recognise(const CsvGoesOn& goesOn);
  bool isUtf8() const { return utf8_; }
  // From its first byte on. A byte that can't be read ends the file: `failed` tells.
  CsvReader reader(bool quotesProtect);
  bool failed() const { return failed_; }

 private:
  std::size_t read(std::int64_t from, char* out, std::size_t size);

  OwnedFile file_;
  std::int64_t length_ = 0, at_ = 0;
  bool utf8_ = false, failed_ = false;
};

// How often the reader of lines looks up: a power of two.
inline constexpr std::int64_t kCsvLinesBetweenLooks = 64;

}  // namespace zelko
