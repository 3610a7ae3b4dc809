#include "parts/reading/textfile.h"

#include "platform/files/files.h"

namespace zelko {

namespace {

constexpr int kTextFile = 2;

}  // namespace

std::optional<Text> readTextFile(TextView path) {
  if (openInput(kTextFile, path) != FileError::none) return std::nullopt;
  Text lines, line;
  bool read = true;
  while (read && !atEnd(kTextFile)) {
    read = readLine(kTextFile, line) == FileError::none;
    if (read) lines += line + kLineEnd;
  }
  closeFile(kTextFile);
  return read ? std::optional(lines) : std::nullopt;
}

bool writeTextFile(TextView path, TextView text) {
  if (openOutput(kTextFile, path) != FileError::none) return false;
  const bool printed = print(kTextFile, text) == FileError::none;
  return closeFile(kTextFile) == FileError::none && printed;
}

}  // namespace zelko
