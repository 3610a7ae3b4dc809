#include "files/csv/csvrecords.h"

#include <algorithm>
#include <utility>

#include "files/csv/plaincells.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"

namespace zelko {

namespace {

constexpr std::string_view kEnd = "\r\n";

bool isBlank(std::string_view bytes) { return bytes.find_first_not_of(' ') == std::string_view::npos; }

std::string_view trimmedBytes(std::string_view bytes) {
  const std::size_t first = bytes.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view()
                                         : bytes.substr(first, bytes.find_last_not_of(' ') - first + 1);
}

// Cuts the cells of a record one behind the other. What a last cell has of the line end counts as blanks.
template <class Use>
void eachCell(const char* record, const std::vector<int>& widths, Use&& use) {
  std::size_t start = 0;
  const bool ends = record[kDataBytes] == '\r' && record[kDataBytes + 1] == '\n';
  const std::size_t end = ends ? std::size_t{kDataBytes} : std::size_t{recLen};
  for (const int width : widths) {
    const std::size_t stop = std::min(start + static_cast<std::size_t>(width), std::size_t{recLen});
    const std::size_t from = std::min(start, end), to = std::min(stop, end);
    use(std::string_view(record + from, to - from), stop - start - (to - from));
    start = stop;
  }
}

}  // namespace

std::int64_t charactersWithoutCode(TextView text) {
  std::int64_t lost = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool pair = (text[at] & 0xFC00) == 0xD800 && at + 1 < text.size() && (text[at + 1] & 0xFC00) == 0xDC00;
    const TextView character = text.substr(at, pair ? 2 : 1);
    if (text[at] >= 0x80 && toSjis(character) == "?") ++lost;
    if (pair) ++at;
  }
  return lost;
}

CsvRecordMaker::CsvRecordMaker(std::vector<ItemLine> items, bool utf8) : items_(std::move(items)), utf8_(utf8) {}

std::string_view CsvRecordMaker::inShiftJis(std::string_view field) {
  if (!utf8_) return throughText(field, scratch_);
  if (isAscii(field)) return field;
  const Text text = fromUtf8(field);
  scratch_ = toSjis(text);
  if (scratch_.find('?') != std::string::npos) counts_.lostCharacters += charactersWithoutCode(text);
  return scratch_;
}

void CsvRecordMaker::make(const CsvLine& line, CacheRow& out) {
  setRow(out, {});
  auto to = out.begin();
  for (std::size_t item = 0; item < items_.size() && item < static_cast<std::size_t>(kDataBytes); ++item) {
    const auto width = std::min(items_[item].width, static_cast<std::int16_t>(out.begin() + kDataBytes - to));
    const auto cellBytes = static_cast<std::size_t>(width);
    std::string_view cell = inShiftJis(line.getSVCdata(item));
    // Blanks go before text is cut.
    if (cell.size() > cellBytes) cell = trimmedBytes(cell);
    const bool right = items_[item].alignment == u"R";
    if (cell.size() > cellBytes) {
      ++counts_.cutCells;
      cell = right ? cell.substr(cell.size() - cellBytes) : cell.substr(0, cellBytes);
    }
    std::ranges::copy(cell, to + (right ? width - static_cast<std::ptrdiff_t>(cell.size()) : 0));
    to += width;
  }
  for (std::size_t field = items_.size(); field < line.fields(); ++field)
    counts_.passedCells += isBlank(line.getSVCdata(field)) ? 0 : 1;
}

PlainCsv::PlainCsv(const std::vector<ItemLine>& items) {
  for (const ItemLine& item : items) widths_.push_back(item.width);
}

void PlainCsv::line(const char* record, std::string& out) {
  bool first = true;
  eachCell(record, widths_, [&](std::string_view cell, std::size_t blanks) {
    out += first ? "\"" : ",\"";
    first = false;
    out += throughText(cell, scratch_);
    out.append(blanks, ' ');
    out += '"';
  });
  out += kEnd;
}

namespace {

void appendQuoted(std::string_view text, std::string& out) {
  out += '"';
  for (const char byte : text) {
    if (byte == '"') out += byte;
    out += byte;
  }
  out += '"';
}

}  // namespace

SheetCsv::SheetCsv(std::vector<ItemLine> items) : items_(std::move(items)) {}

void SheetCsv::head(std::string& out) const {
  out += "\xEF\xBB\xBF";
  for (std::size_t item = 0; item < items_.size(); ++item) {
    if (item > 0) out += ',';
    appendQuoted(toUtf8(trimmed(items_[item].name)), out);
  }
  out += kEnd;
}

void SheetCsv::line(const char* record, std::string& out) {
  std::vector<int> widths;
  for (const ItemLine& item : items_) widths.push_back(item.width);
  bool first = true;
  eachCell(record, widths, [&](std::string_view cell, std::size_t) {
    if (!first) out += ',';
    first = false;
    cell = trimmedBytes(cell);
    if (isAscii(cell))
      appendQuoted(cell, out);
    else
      appendQuoted(toUtf8(fromSjis(cell)), out);
  });
  out += kEnd;
}

}  // namespace zelko
