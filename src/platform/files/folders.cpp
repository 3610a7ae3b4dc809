// Files and folders by name.
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/openfiles.h"

namespace zelko {
namespace {

struct CloseFolder {
  void operator()(DIR* folder) const { closedir(folder); }
};
using Folder = std::unique_ptr<DIR, CloseFolder>;

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { close(); }
  int number() const { return number_; }
  int close() { return number_ < 0 ? 0 : ::close(std::exchange(number_, -1)); }

 private:
  int number_;
};

bool statusOf(TextView path, struct stat& status) {
  const std::string name = nativePath(path);
  if (name.empty()) {
    errno = path.empty() ? ENOENT : EINVAL;
    return false;
  }
  return stat(name.c_str(), &status) == 0;
}

FileError result(int returned) { return returned == 0 ? FileError::none : errorOfErrno(errno); }

FileError copyBytes(int from, int to) {
  char block[65536];
  std::int64_t written = 0;
  for (;;) {
    const ssize_t got = ::read(from, block, sizeof block);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return errorOfErrno(errno);
    if (got == 0) return FileError::none;
    const FileError error = writeAll(to, block, static_cast<std::size_t>(got), written);
    if (error != FileError::none) return error;
  }
}

// Where the target may be replaced by a copy of the source.
FileError mayCopy(const struct stat& source, TextView target) {
  if (S_ISDIR(source.st_mode)) return FileError::pathAccess;
  if (!S_ISREG(source.st_mode)) return FileError::device;
  struct stat status {};
  if (!statusOf(target, status)) return FileError::none;
  if (status.st_dev == source.st_dev && status.st_ino == source.st_ino) return FileError::permission;
  if (!S_ISREG(status.st_mode) || (status.st_mode & S_IWUSR) == 0) return FileError::pathAccess;
  return FileError::none;
}

std::size_t nameStart(TextView path) {
  const std::size_t slash = path.rfind(u'/');
  return slash == TextView::npos ? 0 : slash + 1;
}

bool isFolder(DIR* folder, const dirent& entry) {
  if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return entry.d_type == DT_DIR;
  struct stat status {};
  return fstatat(dirfd(folder), entry.d_name, &status, 0) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

bool fileExists(TextView path) {
  struct stat status {};
  return statusOf(path, status) && !S_ISDIR(status.st_mode);
}

bool folderExists(TextView path) {
  struct stat status {};
  return statusOf(path, status) && S_ISDIR(status.st_mode);
}

FileError deleteFile(TextView path) {
  struct stat status {};
  if (statusOf(path, status)) {
    if (S_ISDIR(status.st_mode) || (status.st_mode & S_IWUSR) == 0) return FileError::pathAccess;
  }
  return result(unlink(nativePath(path).c_str()));
}

FileError renameFile(TextView from, TextView to) {
  const std::string oldName = nativePath(from);
  const std::string newName = nativePath(to);
  if (renameat2(AT_FDCWD, oldName.c_str(), AT_FDCWD, newName.c_str(), RENAME_NOREPLACE) == 0) return FileError::none;
  if (errno != EINVAL && errno != ENOSYS) return errorOfErrno(errno);
  // A file system that cannot refuse by itself.
  struct stat status {};
  if (lstat(newName.c_str(), &status) == 0) return FileError::alreadyExists;
  return result(std::rename(oldName.c_str(), newName.c_str()));
}

FileError copyFile(TextView from, TextView to) {
  const Descriptor source(::open(nativePath(from).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (source.number() < 0 || fstat(source.number(), &status) != 0) return errorOfErrno(errno);
  FileError error = mayCopy(status, to);
  if (error != FileError::none) return error;

  const std::string target = nativePath(to);
  const mode_t mode = (status.st_mode & 0777) | S_IWUSR;  // a private file stays private, a copy can be written
  Descriptor copy(::open(target.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, mode));
  if (copy.number() < 0) return errno == ENOENT ? FileError::pathNotFound : errorOfErrno(errno);
  dropWindows();
  error = copyBytes(source.number(), copy.number());
  if (copy.close() != 0 && error == FileError::none) error = errorOfErrno(errno);
  if (error != FileError::none) unlink(target.c_str());
  return error;
}

FileError makeDirectory(TextView path) {
  const int made = mkdir(nativePath(path).c_str(), 0777);
  return made != 0 && errno == ENOENT ? FileError::pathNotFound : result(made);
}

bool isReadOnly(TextView path) {
  struct stat status {};
  return statusOf(path, status) && (status.st_mode & S_IWUSR) == 0;
}

FileError setReadOnly(TextView path, bool readOnly) {
  struct stat status {};
  if (!statusOf(path, status)) return errorOfErrno(errno);
  const mode_t others = status.st_mode & 07777 & ~static_cast<mode_t>(S_IWUSR);
  return result(chmod(nativePath(path).c_str(), readOnly ? others : others | S_IWUSR));
}

bool systemForbidsWriting(TextView path) {
  return access(nativePath(path).c_str(), W_OK) != 0 && errorOfErrno(errno) == FileError::pathAccess;
}

std::optional<Text> findIgnoringCase(TextView path) {
  if (fileExists(path)) return Text(path);
  const std::size_t start = nameStart(path);
  const TextView folder = path.substr(0, start);
  const Text wanted = lowerCase(path.substr(start));
  const auto entries = listFolder(folder.empty() ? u"." : folder);
  if (!entries) return std::nullopt;
  for (const FolderEntry& entry : *entries) {
    if (!entry.folder && lowerCase(entry.name) == wanted) return Text(folder) + entry.name;
  }
  return std::nullopt;
}

std::optional<std::vector<FolderEntry>> listFolder(TextView path) {
  const Folder folder(opendir(nativePath(path).c_str()));
  if (!folder) return std::nullopt;
  std::vector<FolderEntry> entries;
  while (const dirent* entry = readdir(folder.get())) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") entries.push_back({fromUtf8(name), isFolder(folder.get(), *entry)});
  }
  std::ranges::sort(entries, {}, &FolderEntry::name);
  return entries;
}

Text currentFolder() {
  const std::unique_ptr<char, decltype(&std::free)> folder(getcwd(nullptr, 0), &std::free);
  if (!folder) return u"/";
  const Text path = fromUtf8(folder.get());
  return path.ends_with(u'/') ? path : path + u"/";
}

}  // namespace zelko
