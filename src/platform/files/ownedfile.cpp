#include "platform/files/ownedfile.h"

#include <utility>

#include "platform/files/openfiles.h"
#include "platform/files/workfiles.h"

namespace zelko {

namespace {

constexpr int kFirst = 5, kLast = 15;

int freeNumber() {
  for (int number = kFirst; number <= kLast; ++number)
    if (!isOpen(number)) return number;
  return 0;
}

}  // namespace

OwnedFile::OwnedFile(OwnedFile&& other) noexcept
    : number_(std::exchange(other.number_, 0)), opening_(std::exchange(other.opening_, 0)) {}

OwnedFile& OwnedFile::operator=(OwnedFile&& other) noexcept {
  std::swap(number_, other.number_);
  std::swap(opening_, other.opening_);
  return *this;
}

template <class Opening>
FileError OwnedFile::take(Opening opening) {
  close();
  const int number = freeNumber();
  if (number == 0) return FileError::tooMany;
  const FileError error = opening(number);
  if (error != FileError::none) return error;
  number_ = number;
  opening_ = openingOf(number);
  return error;
}

FileError OwnedFile::openRandom(TextView path, int recordLength) {
  return take([&](int number) { return zelko::openRandom(number, path, recordLength); });
}

FileError OwnedFile::createRandom(TextView path, int recordLength) {
  return take([&](int number) { return zelko::createRandom(number, path, recordLength); });
}

FileError OwnedFile::openToRead(TextView path, int recordLength) {
  return take([&](int number) { return openRandomToRead(number, path, recordLength); });
}

FileError OwnedFile::openInput(TextView path, std::int64_t most, std::size_t longestLine) {
  return take([&](int number) { return zelko::openInput(number, path, most, longestLine); });
}

FileError OwnedFile::openOutput(TextView path) {
  return take([&](int number) { return zelko::openOutput(number, path); });
}

FileError OwnedFile::openNewOutput(TextView path) {
  return take([&](int number) { return zelko::openNewOutput(number, path); });
}

FileError OwnedFile::openAppend(TextView path) {
  return take([&](int number) { return zelko::openAppend(number, path); });
}

FileError OwnedFile::close() {
  const int held = number();
  number_ = 0;
  return held == 0 ? FileError::none : closeFile(held);
}

int OwnedFile::number() const { return number_ != 0 && openingOf(number_) == opening_ ? number_ : 0; }

}  // namespace zelko
