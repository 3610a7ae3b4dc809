// Reads and writes of text files, Shift-JIS outside and Text inside.
#include <algorithm>
#include <cerrno>
#include <utility>

#include <unistd.h>

#include "platform/files/openfiles.h"
#include "platform/text/sjis.h"

namespace zelko {
namespace {

constexpr std::size_t kBufferSize = 65536;

// True while bytes are left, which are fetched where needed. A file that goes on beyond its bound ends in an error.
bool fill(OpenFile& file) {
  if (file.taken < file.buffer.size()) return true;
  if (file.error != FileError::none) return false;
  file.buffer.resize(kBufferSize);
  file.taken = 0;
  ssize_t got;
  do {
    got = ::read(file.descriptor, file.buffer.data(), kBufferSize);
  } while (got < 0 && errno == EINTR);
  if (got < 0) file.error = errorOfErrno(errno);
  // The part of a block that is beyond the bound is not handed out.
  if (got > file.left) file.error = FileError::device;
  const std::int64_t taken = std::clamp<std::int64_t>(got, 0, file.left);
  file.left -= taken;
  file.buffer.resize(static_cast<std::size_t>(taken));
  return taken > 0;
}

void skipBlanks(OpenFile& file) {
  while (fill(file) && file.buffer[file.taken] == ' ') ++file.taken;
}

// The bytes up to the next line end, or comma where that ends a field too; the end itself is taken as well.
// Commas, line ends and quotes are never the second byte of a character.
std::string takePiece(OpenFile& file, bool commaEnds) {
  const auto ends = [commaEnds](char byte) { return byte == '\n' || byte == '\r' || (commaEnds && byte == ','); };
  std::string piece;
  while (file.error == FileError::none && fill(file)) {
    const auto from = file.buffer.begin() + static_cast<std::ptrdiff_t>(file.taken);
    const auto end = std::find_if(from, file.buffer.end(), ends);
    piece.append(from, end);
    if (piece.size() > file.longestLine) file.error = FileError::device;
    file.taken = static_cast<std::size_t>(end - file.buffer.begin());
    if (end == file.buffer.end()) continue;
    ++file.taken;
    if (*end == '\r' && fill(file) && file.buffer[file.taken] == '\n') ++file.taken;
    break;
  }
  return piece;
}

void dropQuotes(std::string& field) {
  if (field.empty() || field.front() != '"') return;
  const std::size_t last = field.find_last_not_of(' ');
  if (last == 0 || field[last] != '"') return;
  field = field.substr(1, last - 1);
}

FileError errorAtEnd(const OpenFile& file) { return file.error != FileError::none ? file.error : FileError::pastEnd; }

FileError write(int number, std::string_view bytes, std::string_view end) {
  OpenFile* file = openFile(number, OpenFile::Use::output);
  if (file == nullptr) return FileError::badNumber;
  file->buffer.append(bytes).append(end);
  return file->buffer.size() < kBufferSize ? file->error : flushText(*file, false);
}

}  // namespace

FileError writeAll(int descriptor, const char* bytes, std::size_t size, std::int64_t& written) {
  while (size > 0) {
    const ssize_t put = ::write(descriptor, bytes, size);
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) return errorOfErrno(errno);
    if (put == 0) return FileError::diskFull;
    bytes += put;
    size -= static_cast<std::size_t>(put);
    written += put;
  }
  return FileError::none;
}

FileError flushText(OpenFile& file, bool last) {
  if (file.replaces && !last) {
    if (ftruncate(file.descriptor, 0) != 0 && file.error == FileError::none) file.error = errorOfErrno(errno);
    file.replaces = false;
  }
  if (file.error == FileError::none) {
    file.error = writeAll(file.descriptor, file.buffer.data(), file.buffer.size(), file.written);
  }
  file.buffer.clear();
  if (file.replaces && ftruncate(file.descriptor, file.written) != 0 && file.error == FileError::none) {
    file.error = errorOfErrno(errno);
  }
  dropWindows();
  return file.error;
}

FileError readField(int number, Text& out) {
  out.clear();
  OpenFile* file = openFile(number, OpenFile::Use::input);
  if (file == nullptr) return FileError::badNumber;
  if (!fill(*file)) return errorAtEnd(*file);
  skipBlanks(*file);
  std::string field = takePiece(*file, true);
  if (file->error != FileError::none) return file->error;
  dropQuotes(field);
  out = fromSjis(field);
  return FileError::none;
}

FileError readLineBytes(int number, std::string& out) {
  out.clear();
  OpenFile* file = openFile(number, OpenFile::Use::input);
  if (file == nullptr) return FileError::badNumber;
  if (!fill(*file)) return errorAtEnd(*file);
  std::string line = takePiece(*file, false);
  if (file->error != FileError::none) return file->error;
  out = std::move(line);
  return FileError::none;
}

FileError readLine(int number, Text& out) {
  std::string line;
  const FileError error = readLineBytes(number, line);
  out = fromSjis(line);
  return error;
}

bool atEnd(int number) {
  OpenFile* file = openFile(number, OpenFile::Use::input);
  return file == nullptr || !fill(*file);
}

FileError printLine(int number, TextView line) { return write(number, toSjis(line), "\r\n"); }

FileError print(int number, TextView text) { return write(number, toSjis(text), ""); }

FileError printBytes(int number, std::string_view bytes) { return write(number, bytes, ""); }

}  // namespace zelko
