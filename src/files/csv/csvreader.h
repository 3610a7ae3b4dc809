// The lines of a CSV file as fields: plain bytes, without a table.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zelko {

// Bytes of the file from where the last call ended, at most `size`; 0 at its end.
using ByteSource = std::function<std::size_t(char* out, std::size_t size)>;

// The fields of one record.
class CsvLine {
 public:
  std::size_t fields() const { return fields_.size(); }
  // Field `number` from 0, trimmed, without the quotes that it stood in; empty beyond the last one. Valid until the
  // next line is read.
  std::string_view getSVCdata(std::size_t number) const;

 private:
  friend class CsvReader;
  std::vector<std::string_view> fields_;
  std::deque<std::string> written_;  // fields whose text is not the bytes of the file
  std::size_t writtenCount_ = 0;
};

// Lines end at CR LF, LF or CR; a last line without an end counts; ^Z ends the file. A mark of UTF-8 at the head is
// passed.
//
// Commas alone part the fields; a field that begins and ends with a quote loses both, a lone quote stays. Where quotes
// protect, a pair that is properly closed (behind it a comma, the end of the line or of the file) also keeps the commas
// and line ends in it: a doubled quote becomes one, a line end a blank. A pair that ends more than kLongestLine bytes
// behind the beginning of its line is none, and of a longer line the rest is passed.
class CsvReader {
 public:
  static constexpr std::size_t kLongestLine = 262144;

  CsvReader(ByteSource source, bool quotesProtect);
  // False at the end of the file.
  bool next(CsvLine& line);
  // Bytes of the file behind which the next line begins.
  std::int64_t taken() const { return passed_ + static_cast<std::int64_t>(at_); }

 private:
  void fill();
  void field(CsvLine& line, std::size_t lineStart);
  bool protectedField(CsvLine& line, std::size_t lineStart);
  void passLineEnd();

  ByteSource source_;
  bool quotesProtect_;
  std::string buffer_;
  std::size_t at_ = 0, end_ = 0;  // what is read and not yet taken
  std::int64_t passed_ = 0;       // bytes in front of the buffer
  bool atEnd_ = false, begun_ = false;
};

// Whether a file is UTF-8: it has the mark, or all of it is UTF-8 and some character takes three bytes, as all Japanese
// ones do. (Two bytes may also be two half-width kana in Shift-JIS.)
class Utf8Judge {
 public:
  // One block behind the other; false where no more of them are needed.
  bool take(std::string_view block);
  bool isUtf8() const { return marked_ || (!broken_ && pending_ == 0 && threeBytes_); }

 private:
  void takeByte(unsigned char byte);

  std::string head_;  // the first bytes, as long as they may be the mark
  bool headSeen_ = false, marked_ = false, broken_ = false, threeBytes_ = false;
  int pending_ = 0;                               // bytes that the character still needs
  unsigned char lowest_ = 0x80, highest_ = 0xBF;  // of the next one of them
};

}  // namespace zelko
