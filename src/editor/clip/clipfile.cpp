#include "editor/clip/clipfile.h"

#include <algorithm>

#include "platform/fault.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kClipFile = 3, kBackupFile = 4;
constexpr char16_t kQuote = u'"';

Text clipName() { return appDir + u"ZLKCLip"; }
Text backupName() { return appDir + u"ZLKCLip.bak"; }

FileError openForInput(int number, const Text& name) {
  closeFile(number);
  return openInput(number, findIgnoringCase(name).value_or(name));
}

FileError openForOutput(int number, const Text& name) {
  closeFile(number);
  return openOutput(number, findIgnoringCase(name).value_or(name));
}

// 0 for what is no record number.
std::int32_t numberOf(TextView field) {
  try {
    return std::max(0, toInt32(val(field)));
  } catch (const Fault&) {
    return 0;
  }
}

FileError printNumbers(std::int32_t first, std::int32_t last) {
  FileError error = printLine(kClipFile, decimal(std::int64_t{last} - first + 1));
  for (std::int32_t number = first; number <= last && error == FileError::none; ++number)
    error = printLine(kClipFile, decimal(number));
  return error;
}

// A field between quotes loses them; of a cell that was split at a comma each piece loses the one that it got.
Text unquoted(TextView piece, bool split) {
  piece.remove_prefix(std::min(piece.find_first_not_of(u' '), piece.size()));
  const std::size_t last = piece.find_last_not_of(u' ');
  if (last == TextView::npos) return {};
  const bool front = piece.front() == kQuote, back = piece[last] == kQuote;
  if (front && back && last > 0) return Text(piece.substr(1, last - 1));
  if (split && front) return Text(piece.substr(1));
  if (split && back) return Text(piece.substr(0, last));
  return Text(piece);
}

// How far into a record the items reach.
std::size_t dataLength() {
  const auto last = static_cast<std::size_t>(itemCount);
  return static_cast<std::size_t>(std::clamp(itemStart[last] + itemWidth[last] - 1, 0, kDataBytes));
}

}  // namespace

FileError ClipWriter::open(const Block& block) {
  FileError error = openForOutput(kClipFile, clipName());
  if (error == FileError::none) error = printNumbers(block.rec1, block.rec2);
  if (error == FileError::none) error = printNumbers(block.item1, block.item2);
  return error;
}

FileError ClipWriter::cell(TextView text) {
  Text line(1, kQuote);
  line.append(text).push_back(kQuote);
  return printLine(kClipFile, line);
}

FileError ClipWriter::close() { return closeFile(kClipFile); }

bool ClipReader::open() { return openForInput(kClipFile, clipName()) == FileError::none; }

void ClipReader::close() { closeFile(kClipFile); }

bool ClipReader::field(Text& out) {
  const bool continued = rest_;
  if (!continued) {
    if (readLine(kClipFile, line_) != FileError::none) return false;
    at_ = 0;
  }
  const std::size_t comma = line_.find(u',', at_);
  rest_ = comma != Text::npos;
  const TextView piece = TextView(line_).substr(at_, rest_ ? comma - at_ : Text::npos);
  at_ = comma + 1;
  out = unquoted(piece, continued || rest_);
  return true;
}

bool ClipReader::counted(std::int32_t& count) {
  Text text;
  if (!field(text)) return false;
  count = numberOf(text);
  for (std::int32_t number = 0; number < count; ++number)
    if (!field(text)) return false;
  return count > 0;
}

bool ClipReader::header() { return counted(records_) && counted(items_); }

bool ClipReader::next(Text& cell) { return field(cell); }

FileError BackupWriter::open(std::int32_t first) {
  const FileError error = openForOutput(kBackupFile, backupName());
  return error == FileError::none ? printLine(kBackupFile, decimal(first)) : error;
}

// A line end inside a record would make two lines of it, and the undo would then run over the record behind.
FileError BackupWriter::record(const CacheRow& row) {
  std::string line(rowBytes(row).substr(0, dataLength()));
  std::replace_if(
      line.begin(), line.end(), [](char byte) { return byte == '\r' || byte == '\n'; }, ' ');
  return printBytes(kBackupFile, '"' + line + "\"\r\n");
}

FileError BackupWriter::close() { return closeFile(kBackupFile); }

std::int32_t BackupReader::open() {
  Text line;
  if (openForInput(kBackupFile, backupName()) != FileError::none) return 0;
  return readLine(kBackupFile, line) == FileError::none ? numberOf(unquoted(line, false)) : 0;
}

bool BackupReader::next(std::string& bytes) {
  if (readLineBytes(kBackupFile, bytes) != FileError::none) return false;
  if (!bytes.starts_with('"')) return true;
  if (bytes.size() < 2 || bytes.back() != '"') return false;
  bytes = bytes.substr(1, bytes.size() - 2);
  return true;
}

void BackupReader::close() { closeFile(kBackupFile); }

}  // namespace zelko
