#include "parts/reading/textfile.h"

#include "platform/files/ownedfile.h"

namespace zelko {

std::optional<Text> readTextFile(TextView path) {
  OwnedFile file;
  if (file.openInput(path) != FileError::none) return std::nullopt;
  Text lines, line;
  bool read = true;
  while (read && !atEnd(file.number())) {
    read = readLine(file.number(), line) == FileError::none;
    if (read) lines += line + kLineEnd;
  }
  return read ? std::optional(lines) : std::nullopt;
}

bool writeTextFile(TextView path, TextView text) {
  OwnedFile file;
  if (file.openOutput(path) != FileError::none) return false;
  const bool printed = print(file.number(), text) == FileError::none;
  return file.close() == FileError::none && printed;
}

}  // namespace zelko
