#include "files/csv/csvfile.h"

#include "platform/files/blockfiles.h"

namespace zelko {

namespace {

constexpr std::size_t kBlock = 262144;

}  // namespace

bool CsvFile::open(const Text& path) {
  failed_ = utf8_ = false;
  if (file_.openToRead(path, 1) != FileError::none) return false;
  length_ = fileLength(file_.number());
  return true;
}

std::size_t CsvFile::read(std::int64_t from, char* out, std::size_t size) {
  std::size_t got = 0;
  if (readBlock(file_.number(), from, out, size, got) == FileError::none) return got;
  failed_ = true;
  return 0;
}

bool CsvFile::recognise(const CsvGoesOn& goesOn) {
  Utf8Judge judge;
  std::string block(kBlock, '\0');
  std::int64_t at = 0;
  for (std::size_t got = 1; got > 0;) {
    if (!goesOn(0)) return false;
    got = read(at, block.data(), block.size());
    at += static_cast<std::int64_t>(got);
    if (!judge.take(std::string_view(block).substr(0, got))) break;
  }
  utf8_ = judge.isUtf8();
  return true;
}

CsvReader CsvFile::reader(bool quotesProtect) {
  at_ = 0;
  const auto source = [this](char* out, std::size_t size) {
    const std::size_t got = read(at_, out, size);
    at_ += static_cast<std::int64_t>(got);
    return got;
  };
  return CsvReader(source, quotesProtect);
}

}  // namespace zelko
