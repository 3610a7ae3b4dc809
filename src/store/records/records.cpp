#include "store/records/records.h"

#include <algorithm>
#include <limits>

#include "platform/files/files.h"
#include "store/records/cachedrows.h"
#include "store/table/mainform.h"
#include "store/table/notice.h"

namespace zelko {

namespace {

constexpr int kDataFile = 1;

// The last failed write that was told, so that a move that flushes twice tells it once.
struct ToldFailure {
  int file = 0;  // 0: none
  std::int32_t record = 0;
  CacheRow bytes{};
};
ToldFailure told;

bool isNewFailure(int file, std::int32_t record, const CacheRow& bytes) {
  if (told.file == file && told.record == record && told.bytes == bytes) return false;
  told = {file, record, bytes};
  return true;
}

void tellRefusedWrite(FileError error, int file, std::int32_t record, const CacheRow& bytes) {
  if (error == FileError::pathAccess) {
    if (readOnlyMarkShown()) return;
    showReadOnlyMark(true);
    tellReadOnly();
    return;
  }
  if (isNewFailure(file, record, bytes)) tellWriteError();
}

}  // namespace

void tellUnstored(std::int32_t record, const CacheRow& row) {
  if (isNewFailure(kDataFile, record, row)) tellReadError();
}

void forgetToldFailure() { told.file = 0; }

std::int32_t recCountOf(int file) {
  const std::int64_t records = fileLength(file) / recLen;
  // The new line behind the last record has a number too.
  constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max() - 1;
  return static_cast<std::int32_t>(std::min(records, kMost));
}

std::int32_t recCount() { return recCountOf(kDataFile); }

bool getRec(int file, std::int32_t record, CacheRow& out) {
  if (record >= 1 && getRecord(file, record, out.data()) == FileError::none) {
    // Behind the end of the file everything reads as NUL, so only then is a look at its length needed.
    if (out.back() != '\0' || record <= recCountOf(file)) return true;
  }
  setRow(out, blankRec);
  return false;
}

bool putRec(int file, std::int32_t record, std::string_view bytes) {
  CacheRow buffer{};
  std::copy_n(bytes.begin(), std::min(bytes.size(), buffer.size()), buffer.begin());
  const FileError error = putRecord(file, record, buffer.data());
  if (error != FileError::none) {
    tellRefusedWrite(error, file, record, buffer);
    return false;
  }
  if (told.file == file && told.record == record) forgetToldFailure();
  return true;
}

std::string_view rowBytes(const CacheRow& row) { return {row.data(), kDataBytes}; }

void setRow(CacheRow& row, std::string_view bytes) {
  const std::size_t length = std::min<std::size_t>(bytes.size(), kDataBytes);
  const auto rest = std::copy_n(bytes.begin(), length, row.begin());
  std::fill(rest, row.end() - 2, ' ');
  row[kDataBytes] = '\r';
  row[kDataBytes + 1] = '\n';
}

}  // namespace zelko
