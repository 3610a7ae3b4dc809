// Random access by record number.
#include <cerrno>
#include <cstring>
#include <vector>

#include <unistd.h>

#include "platform/files/openfiles.h"

namespace zelko {
namespace {

struct Place {
  std::int64_t offset;
  std::size_t size;
};

Place placeOf(const OpenFile& file, std::int32_t record) {
  return {(std::int64_t{record} - 1) * file.recordLength, static_cast<std::size_t>(file.recordLength)};
}

FileError readRecord(int descriptor, Place place, char* out) {
  const std::ptrdiff_t got = readAt(descriptor, out, place.size, place.offset);
  if (got < 0) return errorOfErrno(errno);
  std::memset(out + got, 0, place.size - static_cast<std::size_t>(got));
  return FileError::none;
}

FileError writeAt(int descriptor, const char* bytes, std::size_t size, std::int64_t offset) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t put = pwrite(descriptor, bytes + done, size - done, offset + static_cast<std::int64_t>(done));
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) return errorOfErrno(errno);
    if (put == 0) return FileError::diskFull;
    done += static_cast<std::size_t>(put);
  }
  return FileError::none;
}

bool readBefore(const OpenFile& file, Place place, std::vector<char>& before) {
  before.resize(place.size);
  const std::ptrdiff_t got = readAt(file.descriptor, before.data(), place.size, place.offset);
  before.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
  return got >= 0;
}

// Puts back what a failed write may have changed.
void restore(const OpenFile& file, std::int64_t length, std::int64_t offset, const std::vector<char>& before) {
  // Nothing is left to be tried where this fails too.
  (void)!ftruncate(file.descriptor, length);
  writeAt(file.descriptor, before.data(), before.size(), offset);
  dropWindows();
}

}  // namespace

FileError getRecord(int number, std::int32_t record, char* out) {
  OpenFile* file = openFile(number, OpenFile::Use::random);
  if (file == nullptr || record < 1) return FileError::badNumber;
  const Place place = placeOf(*file, record);
  const bool walks = record - 1 == file->lastRecord;
  file->lastRecord = record;
  if (file->window.copy(place.offset, place.size, out)) return FileError::none;
  if (!walks) {
    file->window.shrink();
    return readRecord(file->descriptor, place, out);
  }
  file->window.load(file->descriptor, place.offset);
  if (file->window.copy(place.offset, place.size, out)) return FileError::none;
  return readRecord(file->descriptor, place, out);
}

FileError putRecord(int number, std::int32_t record, const char* bytes) {
  OpenFile* file = openFile(number, OpenFile::Use::random);
  if (file == nullptr || record < 1) return FileError::badNumber;
  FileError error = mayWrite(*file);
  if (error != FileError::none) return error;
  const std::int64_t length = fileLength(number);

  const Place place = placeOf(*file, record);
  std::vector<char> before;
  if (place.offset < length && !readBefore(*file, place, before)) return errorOfErrno(errno);

  error = writeAt(file->descriptor, bytes, place.size, place.offset);
  if (error != FileError::none) {
    restore(*file, length, place.offset, before);
    return error;
  }
  patchWindows(*file, place.offset, bytes, place.size);
  return FileError::none;
}

FileError syncFile(int number) {
  OpenFile* file = openFile(number, OpenFile::Use::random);
  if (file == nullptr) file = openFile(number, OpenFile::Use::output);
  if (file == nullptr) return FileError::badNumber;
  if (file->use == OpenFile::Use::output) {
    const FileError error = flushText(*file, false);
    if (error != FileError::none) return error;
  }
  if (file->regular && fdatasync(file->descriptor) != 0) return errorOfErrno(errno);
  return FileError::none;
}

}  // namespace zelko
