#include "platform/files/linefile.h"

#include "platform/files/ownedfile.h"
#include "platform/files/workfiles.h"

namespace zelko {

std::optional<std::vector<Text>> readValueLines(TextView path, std::int64_t most, FileError& error) {
  OwnedFile file;
  error = file.openInput(path, most);
  if (error != FileError::none) return std::nullopt;
  std::vector<Text> lines;
  while (!atEnd(file.number())) {
    Text line;
    error = readLine(file.number(), line);
    if (error != FileError::none) return std::nullopt;
    lines.push_back(std::move(line));
  }
  return lines;
}

std::optional<std::vector<Text>> readValueLines(TextView path, std::int64_t most) {
  FileError error = FileError::none;
  return readValueLines(path, most, error);
}

FileError writeValueLines(TextView path, const std::vector<Text>& lines) {
  if (isReadOnly(path)) return FileError::pathAccess;
  const Text unfinished = Text(path.substr(0, path.rfind(u'/') + 1)) + u"KSAVE.QQQ";
  OwnedFile file;
  FileError error = file.openNewOutput(unfinished);
  if (error != FileError::none) return error;
  for (const Text& line : lines) {
    if (error == FileError::none) error = printLine(file.number(), line);
  }
  if (error == FileError::none) error = syncFile(file.number());
  const FileError closed = file.close();
  if (error == FileError::none) error = closed;
  if (error == FileError::none) error = renameOver(unfinished, path);
  if (error != FileError::none) removeOwnName(unfinished);
  return error;
}

}  // namespace zelko
