// Putting a finished file in the place of an old one, and taking back what was written behind an old end.
#include <filesystem>

#include "platform/files/openfiles.h"
#include "platform/files/workfiles.h"

namespace zelko {

FileError replaceFile(TextView from, TextView to) {
  namespace fs = std::filesystem;
  const fs::path source = toUtf8(from);
  fs::path target = toUtf8(to);
  std::error_code error;
  // A link keeps pointing at the file that changes.
  if (fs::is_symlink(target, error)) target = fs::canonical(target, error);
  if (const fs::file_status old = fs::status(target, error); fs::is_regular_file(old))
    fs::permissions(source, old.permissions(), error);
  fs::rename(source, target, error);
  return error ? FileError::pathAccess : syncFolderOf(fromUtf8(target.string()));
}

FileError cutFile(TextView path, std::int64_t length) {
  std::error_code error;
  std::filesystem::resize_file(toUtf8(path), static_cast<std::uintmax_t>(length), error);
  dropWindows();
  return error ? FileError::pathAccess : FileError::none;
}

}  // namespace zelko
