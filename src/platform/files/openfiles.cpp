#include "platform/files/openfiles.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <span>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zelko {
namespace {

constexpr int kLargestNumber = 15;
std::array<OpenFile, kLargestNumber + 1> table;  // 0 is never used
std::uint64_t openings = 0;

bool isNumber(int number) { return number >= 1 && number <= kLargestNumber; }

// Opened without waiting: a pipe in the place of a file must not stop the program.
int openDescriptor(const std::string& name, int flags) {
  int descriptor;
  do {
    descriptor = ::open(name.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666);
  } while (descriptor < 0 && errno == EINTR);
  return descriptor;
}

FileError errorOfOpening(int flags) {
  // With O_CREAT a missing name means a missing folder.
  if (errno == ENOENT && (flags & O_CREAT) != 0) return FileError::pathNotFound;
  return errorOfErrno(errno);
}

FileError checkKind(const struct stat& status, OpenFile::Use use) {
  if (S_ISDIR(status.st_mode)) return FileError::pathAccess;
  if (S_ISREG(status.st_mode)) {
    const bool readOnly = (status.st_mode & S_IWUSR) == 0;
    return use == OpenFile::Use::output && readOnly ? FileError::pathAccess : FileError::none;
  }
  const bool isStream = S_ISCHR(status.st_mode) && use == OpenFile::Use::output;  // a printer port
  return isStream ? FileError::none : FileError::device;
}

FileError openAs(int number, TextView path, OpenFile::Use use, std::span<const int> flagsToTry) {
  if (!isNumber(number)) return FileError::badNumber;
  if (isOpen(number)) return FileError::alreadyOpen;
  const std::string name = nativePath(path);
  if (name.empty()) return FileError::badNumber;

  int descriptor = -1;
  FileError error = FileError::none;
  bool writable = false;
  for (const int flags : flagsToTry) {
    descriptor = openDescriptor(name, flags);
    writable = descriptor >= 0 && (flags & O_ACCMODE) != O_RDONLY;
    if (descriptor >= 0) break;
    if (error == FileError::none) error = errorOfOpening(flags);
    if (error != FileError::pathAccess) break;
  }
  if (descriptor < 0) return error;

  struct stat status {};
  error = fstat(descriptor, &status) == 0 ? checkKind(status, use) : errorOfErrno(errno);
  if (error != FileError::none) {
    ::close(descriptor);
    return error;
  }
  OpenFile& file = table[static_cast<std::size_t>(number)];
  file.use = use;
  file.descriptor = descriptor;
  file.opening = ++openings;
  file.regular = S_ISREG(status.st_mode);
  file.device = status.st_dev;
  file.inode = status.st_ino;
  file.writable = writable;
  return FileError::none;
}

FileError openRecords(int number, TextView path, int recordLength, std::span<const int> flagsToTry) {
  if (recordLength < 1) return FileError::badNumber;
  const FileError error = openAs(number, path, OpenFile::Use::random, flagsToTry);
  if (error == FileError::none) openFile(number, OpenFile::Use::random)->recordLength = recordLength;
  return error;
}

}  // namespace

OpenFile* openFile(int number, OpenFile::Use use) {
  if (!isNumber(number)) return nullptr;
  OpenFile& file = table[static_cast<std::size_t>(number)];
  return file.use == use ? &file : nullptr;
}

std::uint64_t openingOf(int number) { return isNumber(number) ? table[static_cast<std::size_t>(number)].opening : 0; }

FileError mayWrite(const OpenFile& file) {
  struct stat status {};
  if (fstat(file.descriptor, &status) != 0) return errorOfErrno(errno);
  if (status.st_nlink == 0) return FileError::device;
  const bool readOnly = !file.writable || (status.st_mode & S_IWUSR) == 0;
  return readOnly ? FileError::pathAccess : FileError::none;
}

void dropWindows() {
  for (OpenFile& file : table) file.window.drop();
}

void patchWindows(const OpenFile& written, std::int64_t offset, const char* bytes, std::size_t size) {
  for (OpenFile& file : table) {
    if (file.use != OpenFile::Use::random) continue;
    if (file.inode == written.inode && file.device == written.device) file.window.patch(offset, bytes, size);
  }
}

FileError errorOfErrno(int number) {
  switch (number) {
    case ENOENT:
      return FileError::notFound;
    case ENOTDIR:
      return FileError::pathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ETXTBSY:
      return FileError::pathAccess;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return FileError::diskFull;
    case EEXIST:
    case ENOTEMPTY:
      return FileError::alreadyExists;
    case EMFILE:
    case ENFILE:
      return FileError::tooMany;
    case EBUSY:
      return FileError::permission;
    case ENAMETOOLONG:
    case ELOOP:
    case EINVAL:
      return FileError::badNumber;
    default:
      return FileError::device;
  }
}

std::string nativePath(TextView path) {
  const std::string name = toUtf8(path);
  return name.find('\0') == std::string::npos ? name : std::string();
}

FileError openRandom(int number, TextView path, int recordLength) {
  constexpr int kFlags[] = {O_RDWR | O_CREAT, O_RDONLY};
  return openRecords(number, path, recordLength, kFlags);
}

FileError createRandom(int number, TextView path, int recordLength) {
  constexpr int kFlags[] = {O_RDWR | O_CREAT | O_EXCL};
  return openRecords(number, path, recordLength, kFlags);
}

FileError openRandomToRead(int number, TextView path, int recordLength) {
  constexpr int kFlags[] = {O_RDONLY};
  return openRecords(number, path, recordLength, kFlags);
}

FileError openInput(int number, TextView path, std::int64_t most, std::size_t longestLine) {
  constexpr int kFlags[] = {O_RDONLY};
  const FileError error = openAs(number, path, OpenFile::Use::input, kFlags);
  if (error != FileError::none) return error;
  OpenFile& file = *openFile(number, OpenFile::Use::input);
  file.left = most;
  file.longestLine = longestLine;
  return error;
}

FileError createOutput(int number, TextView path) {
  constexpr int kFlags[] = {O_WRONLY | O_CREAT | O_EXCL};
  return openAs(number, path, OpenFile::Use::output, kFlags);
}

FileError openOutput(int number, TextView path) {
  constexpr int kFlags[] = {O_WRONLY | O_CREAT};
  const FileError error = openAs(number, path, OpenFile::Use::output, kFlags);
  if (OpenFile* file = openFile(number, OpenFile::Use::output); error == FileError::none)
    file->replaces = file->regular;
  return error;
}

FileError openAppend(int number, TextView path) {
  constexpr int kFlags[] = {O_WRONLY | O_CREAT | O_APPEND};
  const FileError error = openAs(number, path, OpenFile::Use::output, kFlags);
  if (error != FileError::none) return error;
  OpenFile& file = *openFile(number, OpenFile::Use::output);
  struct stat status {};
  if (fstat(file.descriptor, &status) == 0) file.written = status.st_size;
  return FileError::none;
}

bool isOpen(int number) {
  return isNumber(number) && table[static_cast<std::size_t>(number)].use != OpenFile::Use::closed;
}

FileError closeFile(int number) {
  if (!isOpen(number)) return FileError::none;
  OpenFile& file = table[static_cast<std::size_t>(number)];
  FileError error = FileError::none;
  if (file.use == OpenFile::Use::output) error = flushText(file, true);
  if (::close(file.descriptor) != 0 && errno != EINTR && error == FileError::none) error = errorOfErrno(errno);
  file = OpenFile();
  return error;
}

void closeAll() {
  for (int number = 1; number <= kLargestNumber; ++number) closeFile(number);
}

std::int64_t fileLength(int number) {
  if (!isOpen(number)) return 0;
  const OpenFile& file = table[static_cast<std::size_t>(number)];
  if (file.use == OpenFile::Use::output) return file.written + static_cast<std::int64_t>(file.buffer.size());
  struct stat status {};
  return fstat(file.descriptor, &status) == 0 ? std::int64_t{status.st_size} : 0;
}

}  // namespace zelko
