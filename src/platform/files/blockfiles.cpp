#include "platform/files/blockfiles.h"

#include <cerrno>
#include <filesystem>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/openfiles.h"

namespace zelko {
namespace {

constexpr std::int64_t kStretch = std::int64_t{4} << 20;  // sent to the disk at a time
constexpr std::int64_t kAhead = 4 * kStretch;             // not yet on the disk at most

// The disk writes while the next blocks are made; waiting for what lies further back keeps each wait short.
void sendOn(int descriptor, std::int64_t offset, std::int64_t end) {
  const std::int64_t complete = end / kStretch * kStretch;
  if (complete <= offset || complete < kStretch) return;
  sync_file_range(descriptor, complete - kStretch, kStretch, SYNC_FILE_RANGE_WRITE);
  if (complete < kAhead) return;
  sync_file_range(descriptor, complete - kAhead, kStretch,
                  SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER);
}

}  // namespace

FileError readBlock(int number, std::int64_t offset, char* out, std::size_t size, std::size_t& got) {
  got = 0;
  const OpenFile* file = openFile(number, OpenFile::Use::random);
  if (file == nullptr || offset < 0) return FileError::badNumber;
  const std::ptrdiff_t bytes = readAt(file->descriptor, out, size, offset);
  if (bytes < 0) return errorOfErrno(errno);
  got = static_cast<std::size_t>(bytes);
  return FileError::none;
}

FileError writeBlock(int number, std::int64_t offset, std::string_view bytes) {
  const OpenFile* file = openFile(number, OpenFile::Use::random);
  if (file == nullptr || offset < 0) return FileError::badNumber;
  if (!file->writable) return FileError::pathAccess;
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t put =
        pwrite(file->descriptor, bytes.data() + done, bytes.size() - done, offset + static_cast<std::int64_t>(done));
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) return errorOfErrno(errno);
    if (put == 0) return FileError::diskFull;
    done += static_cast<std::size_t>(put);
  }
  patchWindows(*file, offset, bytes.data(), bytes.size());
  sendOn(file->descriptor, offset, offset + static_cast<std::int64_t>(bytes.size()));
  return FileError::none;
}

FileError mayWriteRecords(int number) {
  const OpenFile* file = openFile(number, OpenFile::Use::random);
  return file == nullptr ? FileError::badNumber : mayWrite(*file);
}

bool leadsTo(TextView path, int number) {
  const OpenFile* file = openFile(number, OpenFile::Use::random);
  struct stat status {};
  if (file == nullptr || stat(nativePath(path).c_str(), &status) != 0) return false;
  return status.st_dev == file->device && status.st_ino == file->inode;
}

// Where locks are not to be had nobody is refused.
bool lockFile(int number) {
  const OpenFile* file = openFile(number, OpenFile::Use::random);
  return file == nullptr || flock(file->descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

FileError cutOpenFile(int number, std::int64_t length) {
  const OpenFile* file = openFile(number, OpenFile::Use::random);
  if (file == nullptr) return FileError::badNumber;
  dropWindows();
  return ftruncate(file->descriptor, length) == 0 ? FileError::none : errorOfErrno(errno);
}

Text behindLinks(TextView path) {
  std::error_code error;
  const std::filesystem::path name = nativePath(path);
  if (!std::filesystem::is_symlink(name, error)) return Text(path);
  const std::filesystem::path target = std::filesystem::canonical(name, error);
  return error ? Text(path) : fromUtf8(target.string());
}

FileError copyPermissions(TextView from, TextView to) {
  struct stat status {};
  if (stat(nativePath(from).c_str(), &status) != 0) return errorOfErrno(errno);
  return chmod(nativePath(to).c_str(), status.st_mode & 07777) == 0 ? FileError::none : errorOfErrno(errno);
}

std::int64_t lengthOf(TextView path) {
  struct stat status {};
  return stat(nativePath(path).c_str(), &status) == 0 ? std::int64_t{status.st_size} : -1;
}

}  // namespace zelko
