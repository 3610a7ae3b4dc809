#include "store/rewrite/filemark.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstring>
#include <vector>

#include "platform/files/blockfiles.h"
#include "platform/files/workfiles.h"

namespace zelko {
namespace {

constexpr int kFile = 2;
constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15;  // 2^64 divided by the golden ratio

std::uint64_t mixed(std::uint64_t lane, std::uint64_t word) { return std::rotl((lane ^ word) * kOdd, 29); }

}  // namespace

void Marking::mix(const char* stripe) {
  for (std::size_t lane = 0; lane < lanes_.size(); ++lane) {
    std::uint64_t word;
    std::memcpy(&word, stripe + lane * sizeof word, sizeof word);
    lanes_[lane] = mixed(lanes_[lane], word);
  }
}

void Marking::add(std::string_view bytes) {
  length_ += static_cast<std::int64_t>(bytes.size());
  while (!bytes.empty()) {
    if (waiting_ == 0) {
      for (; bytes.size() >= kStripe; bytes.remove_prefix(kStripe)) mix(bytes.data());
      if (bytes.empty()) return;
    }
    const std::size_t taken = std::min(kStripe - waiting_, bytes.size());
    std::memcpy(rest_.data() + waiting_, bytes.data(), taken);
    bytes.remove_prefix(taken);
    waiting_ = (waiting_ + taken) % kStripe;
    if (waiting_ == 0) mix(rest_.data());
  }
}

FileMark Marking::mark() const {
  Marking whole = *this;
  if (waiting_ > 0) {
    std::fill(whole.rest_.begin() + static_cast<std::ptrdiff_t>(waiting_), whole.rest_.end(), '\0');
    whole.mix(whole.rest_.data());
  }
  std::uint64_t sum = static_cast<std::uint64_t>(length_);
  for (const std::uint64_t lane : whole.lanes_) sum = mixed(sum, lane);
  return {length_, sum};
}

std::optional<FileMark> markOfFile(TextView path) {
  if (isLink(path) || !fileExists(path) || openRandomToRead(kFile, path, 1) != FileError::none) return std::nullopt;
  Marking marking;
  std::vector<char> block(std::size_t{1} << 20);
  std::int64_t at = 0;
  std::size_t got = 0;
  FileError error = FileError::none;
  do {
    error = readBlock(kFile, at, block.data(), block.size(), got);
    marking.add({block.data(), got});
    at += static_cast<std::int64_t>(got);
  } while (error == FileError::none && got == block.size());
  closeFile(kFile);
  if (error != FileError::none) return std::nullopt;
  return marking.mark();
}

Text markText(const FileMark& mark) {
  char digits[17] = {};
  std::to_chars(digits, digits + 16, mark.sum, 16);
  return fromUtf8(std::to_string(mark.length) + " " + digits);
}

std::optional<FileMark> markFromText(TextView text) {
  const std::string line = toUtf8(text);
  const char* end = line.data() + line.size();
  FileMark mark;
  const auto length = std::from_chars(line.data(), end, mark.length);
  if (length.ec != std::errc() || mark.length < 0 || length.ptr == end || *length.ptr != ' ') return std::nullopt;
  const auto sum = std::from_chars(length.ptr + 1, end, mark.sum, 16);
  if (sum.ec != std::errc() || sum.ptr != end) return std::nullopt;
  return mark;
}

}  // namespace zelko
