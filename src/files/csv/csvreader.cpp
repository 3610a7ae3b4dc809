#include "files/csv/csvreader.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "files/csv/plaincells.h"

namespace zelko {

namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";
constexpr char kFileEnd = 0x1A;

std::string_view trimmedField(std::string_view field) {
  const std::size_t first = field.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return field.substr(first, field.find_last_not_of(' ') - first + 1);
}

bool holds(std::string_view bytes, char byte) { return std::memchr(bytes.data(), byte, bytes.size()) != nullptr; }

bool isLineEnd(char byte) { return byte == '\r' || byte == '\n'; }

// A doubled quote is one, a line end a blank.
void writeUnquoted(std::string_view quoted, std::string& out) {
  out.clear();
  for (std::size_t at = 0; at < quoted.size(); ++at) {
    const char byte = quoted[at];
    const bool pair =
        at + 1 < quoted.size() && ((byte == '"' && quoted[at + 1] == '"') || (byte == '\r' && quoted[at + 1] == '\n'));
    if (pair) ++at;
    out += isLineEnd(byte) ? ' ' : byte;
  }
}

}  // namespace

std::string_view CsvLine::getSVCdata(std::size_t number) const {
  return number < fields_.size() ? fields_[number] : std::string_view();
}

CsvReader::CsvReader(ByteSource source, bool quotesProtect)
    : source_(std::move(source)), quotesProtect_(quotesProtect), buffer_(2 * kLongestLine, '\0') {
  fill();
  if (std::string_view(buffer_.data(), end_).starts_with(kMark)) at_ = kMark.size();
}

// At least a whole line is in the buffer afterwards, where there is as much.
void CsvReader::fill() {
  if (atEnd_ || end_ - at_ >= kLongestLine) return;
  std::memmove(buffer_.data(), buffer_.data() + at_, end_ - at_);
  passed_ += static_cast<std::int64_t>(at_);
  end_ -= at_;
  at_ = 0;
  while (!atEnd_ && end_ < buffer_.size()) {
    char* const to = buffer_.data() + end_;
    const std::size_t got = source_(to, buffer_.size() - end_);
    const void* const fileEnd = std::memchr(to, kFileEnd, got);
    atEnd_ = got == 0 || fileEnd != nullptr;
    end_ += fileEnd ? static_cast<std::size_t>(static_cast<const char*>(fileEnd) - to) : got;
  }
}

bool CsvReader::next(CsvLine& line) {
  line.fields_.clear();
  line.writtenCount_ = 0;
  if (begun_) passLineEnd();
  begun_ = true;
  fill();
  if (at_ == end_) return false;
  const std::size_t lineStart = at_;
  field(line, lineStart);
  while (at_ < end_ && buffer_[at_] == ',' && at_ - lineStart < kLongestLine) {
    ++at_;
    field(line, lineStart);
  }
  return true;
}

void CsvReader::field(CsvLine& line, std::size_t lineStart) {
  if (quotesProtect_ && protectedField(line, lineStart)) return;
  const std::size_t start = at_;
  while (at_ < end_ && buffer_[at_] != ',' && !isLineEnd(buffer_[at_])) ++at_;
  std::string_view field = trimmedField({buffer_.data() + start, at_ - start});
  if (field.size() >= 2 && field.front() == '"' && field.back() == '"') field = field.substr(1, field.size() - 2);
  line.fields_.push_back(field);
}

bool CsvReader::protectedField(CsvLine& line, std::size_t lineStart) {
  const std::size_t limit = std::min(end_, lineStart + kLongestLine);
  const bool limitIsEnd = limit == end_ && atEnd_;
  std::size_t open = at_;
  while (open < limit && buffer_[open] == ' ') ++open;
  if (open >= limit || buffer_[open] != '"') return false;
  bool plain = true;
  std::size_t close = open;
  while (true) {
    const void* const quote = std::memchr(buffer_.data() + close + 1, '"', limit - close - 1);
    if (!quote) return false;
    close = static_cast<std::size_t>(static_cast<const char*>(quote) - buffer_.data());
    if (close + 1 == limit || buffer_[close + 1] != '"') break;
    plain = false;
    ++close;
    if (close + 1 == limit) return false;
  }
  std::size_t behind = close + 1;
  while (behind < limit && buffer_[behind] == ' ') ++behind;
  if (behind == limit ? !limitIsEnd : buffer_[behind] != ',' && !isLineEnd(buffer_[behind])) return false;
  std::string_view content(buffer_.data() + open + 1, close - open - 1);
  if (!plain || holds(content, '\n') || holds(content, '\r')) {
    if (line.written_.size() == line.writtenCount_) line.written_.emplace_back();
    std::string& written = line.written_[line.writtenCount_++];
    writeUnquoted(content, written);
    content = written;
  }
  line.fields_.push_back(content);
  at_ = behind;
  return true;
}

// Of a line that is longer than any table can take the rest goes unread.
void CsvReader::passLineEnd() {
  do {
    fill();
    while (at_ < end_ && !isLineEnd(buffer_[at_])) ++at_;
  } while (at_ == end_ && !atEnd_);
  fill();
  const bool pair = end_ - at_ >= 2 && buffer_[at_] == '\r' && buffer_[at_ + 1] == '\n';
  at_ = std::min(end_, at_ + (pair ? 2u : 1u));
}

bool Utf8Judge::take(std::string_view block) {
  const std::size_t fileEnd = block.find(kFileEnd);
  if (fileEnd != std::string_view::npos) block = block.substr(0, fileEnd);
  if (!headSeen_) {
    head_.append(block.substr(0, kMark.size() - head_.size()));
    headSeen_ = head_.size() == kMark.size();
    marked_ = head_ == kMark;
  }
  for (std::size_t at = 0; at < block.size() && !broken_ && !marked_;) {
    if (pending_ == 0) {
      const std::size_t ascii = asciiPrefix(block.substr(at));
      at += ascii;
      if (ascii > 0) continue;
    }
    takeByte(static_cast<unsigned char>(block[at++]));
  }
  return !broken_ && !marked_ && fileEnd == std::string_view::npos;
}

// What may follow the first byte, so that no character has two forms, none is half of a pair and none lies beyond the
// last.
void Utf8Judge::takeByte(unsigned char byte) {
  if (pending_ > 0) {
    broken_ = byte < lowest_ || byte > highest_;
    lowest_ = 0x80;
    highest_ = 0xBF;
    --pending_;
    return;
  }
  if (byte < 0x80) return;
  broken_ = byte < 0xC2 || byte > 0xF4;
  pending_ = byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
  threeBytes_ = threeBytes_ || pending_ == 2;
  if (byte == 0xE0) lowest_ = 0xA0;
  if (byte == 0xED) highest_ = 0x9F;
  if (byte == 0xF0) lowest_ = 0x90;
  if (byte == 0xF4) highest_ = 0x8F;
}

}  // namespace zelko
