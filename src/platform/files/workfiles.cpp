#include "platform/files/workfiles.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/openfiles.h"

namespace zelko {
namespace {

class Descriptor {
 public:
  Descriptor(const std::string& name, int flags) : number_(::open(name.c_str(), flags | O_CLOEXEC | O_NONBLOCK)) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  int number() const { return number_; }

 private:
  int number_;
};

// The lock of a program that is making the file dies with it.
bool isBeingMade(const std::string& name) {
  const Descriptor file(name, O_RDONLY | O_NOFOLLOW);
  return file.number() >= 0 && flock(file.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

FileError locked(FileError error, int number, OpenFile::Use use) {
  if (error == FileError::none) flock(openFile(number, use)->descriptor, LOCK_EX | LOCK_NB);
  return error;
}

}  // namespace

FileError openNewRandom(int number, TextView path, int recordLength) {
  const FileError freed = removeOwnName(path);
  if (freed != FileError::none) return freed;
  return locked(createRandom(number, path, recordLength), number, OpenFile::Use::random);
}

FileError openNewOutput(int number, TextView path) {
  const FileError freed = removeOwnName(path);
  if (freed != FileError::none) return freed;
  return locked(createOutput(number, path), number, OpenFile::Use::output);
}

FileError removeOwnName(TextView path) {
  const std::string name = nativePath(path);
  struct stat status {};
  if (lstat(name.c_str(), &status) != 0) return errno == ENOENT ? FileError::none : errorOfErrno(errno);
  if (S_ISDIR(status.st_mode)) return FileError::pathAccess;
  if (S_ISREG(status.st_mode) && isBeingMade(name)) return FileError::permission;
  return unlink(name.c_str()) == 0 ? FileError::none : errorOfErrno(errno);
}

bool isLeftOver(TextView path) {
  const std::string name = nativePath(path);
  struct stat status {};
  if (lstat(name.c_str(), &status) != 0 || S_ISDIR(status.st_mode)) return false;
  return !S_ISREG(status.st_mode) || !isBeingMade(name);
}

bool isLink(TextView path) {
  struct stat status {};
  return lstat(nativePath(path).c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

FileError renameOver(TextView from, TextView to) {
  if (std::rename(nativePath(from).c_str(), nativePath(to).c_str()) != 0) return errorOfErrno(errno);
  dropWindows();
  return syncFolderOf(to);
}

FileError syncFolderOf(TextView file) {
  const std::size_t slash = file.rfind(u'/');
  const std::string name = slash == TextView::npos ? "." : nativePath(file.substr(0, slash + 1));
  const Descriptor folder(name, O_RDONLY | O_DIRECTORY);
  if (folder.number() < 0) return errorOfErrno(errno);
  // Some file systems have nothing to sync there.
  return fsync(folder.number()) == 0 || errno == EINVAL ? FileError::none : errorOfErrno(errno);
}

std::optional<std::string> readOwnFile(TextView path, std::size_t most) {
  const Descriptor file(nativePath(path), O_RDONLY | O_NOFOLLOW);
  struct stat status {};
  if (file.number() < 0 || fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  if (status.st_size > static_cast<off_t>(most)) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
  if (readAt(file.number(), bytes.data(), bytes.size(), 0) != status.st_size) return std::nullopt;
  return bytes;
}

std::string fileIdentity(int number) {
  const OpenFile* file = openFile(number, OpenFile::Use::random);
  struct statx status {};
  if (file == nullptr || statx(file->descriptor, "", AT_EMPTY_PATH, STATX_INO | STATX_BTIME, &status) != 0) return {};
  return std::to_string(status.stx_ino) + "." + std::to_string(status.stx_btime.tv_sec) + "." +
         std::to_string(status.stx_btime.tv_nsec);
}

FileError takePermissions(int number, TextView from) {
  const OpenFile* file = openFile(number, OpenFile::Use::random);
  struct stat status {};
  if (file == nullptr) return FileError::badNumber;
  if (stat(nativePath(from).c_str(), &status) != 0) return errorOfErrno(errno);
  return fchmod(file->descriptor, status.st_mode & 07777) == 0 ? FileError::none : errorOfErrno(errno);
}

}  // namespace zelko
