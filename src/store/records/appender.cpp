#include "store/records/appender.h"

#include <algorithm>
#include <limits>

#include "platform/files/blockfiles.h"

namespace zelko {

namespace {

constexpr std::size_t kBlock = std::size_t{256} << 10;  // bytes

}  // namespace

FileError RecordAppender::create(const Text& fullName) {
  takeBack();
  fullName_ = fullName;
  const FileError error = file_.createRandom(fullName, recLen);
  return error == FileError::none ? begin(true) : error;
}

FileError RecordAppender::open(const Text& fullName) {
  const FileError making = create(fullName);
  if (making != FileError::alreadyExists) return making;
  const FileError error = file_.openRandom(fullName, recLen);
  return error == FileError::none ? begin(false) : error;
}

FileError RecordAppender::begin(bool made) {
  made_ = made;
  failed_ = false;
  appended_ = 0;
  length_ = fileLength(file_.number());
  written_ = length_ / recLen * recLen;
  tail_.resize(static_cast<std::size_t>(length_ - written_));
  std::size_t got = 0;
  FileError error = made ? FileError::none : mayWriteRecords(file_.number());
  if (error == FileError::none) error = readBlock(file_.number(), written_, tail_.data(), tail_.size(), got);
  if (error == FileError::none && got != tail_.size()) error = FileError::device;
  if (error != FileError::none) file_.close();
  return error;
}

bool RecordAppender::append(std::string_view record) {
  if (failed_ || !file_.isOpen()) return false;
  constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max() - 1;
  if (length_ / recLen + appended_ >= kMost) failed_ = true;
  if (record.size() == recLen) {
    waiting_.append(record);
  } else {
    const std::size_t length = std::min<std::size_t>(record.size(), kDataBytes);
    waiting_.append(record.substr(0, length)).append(kDataBytes - length, ' ').append("\r\n");
  }
  ++appended_;
  return waiting_.size() < kBlock ? !failed_ : write();
}

bool RecordAppender::write() {
  if (failed_ || !file_.isOpen()) return false;
  failed_ = writeBlock(file_.number(), written_, waiting_) != FileError::none;
  written_ += static_cast<std::int64_t>(waiting_.size());
  waiting_.clear();
  return !failed_;
}

bool RecordAppender::finish() {
  if (!write()) return false;
  failed_ = syncFile(file_.number()) != FileError::none;
  return !failed_;
}

void RecordAppender::keep() { file_.close(); }

void RecordAppender::takeBack() {
  waiting_.clear();
  if (!file_.isOpen()) return;
  const std::int64_t records = length_ / recLen * recLen;
  if (written_ > records) {
    writeBlock(file_.number(), records, tail_);
    cutOpenFile(file_.number(), length_);
  }
  const bool goes = made_ && leadsTo(fullName_, file_.number());
  file_.close();
  if (goes) deleteFile(fullName_);
}

}  // namespace zelko
