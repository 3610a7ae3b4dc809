#include "store/table/description.h"

#include <optional>

#include "platform/fault.h"
#include "platform/files/workfiles.h"
#include "platform/text/number.h"
#include "store/table/table.h"

namespace zelko {

namespace {

constexpr int kItemFile = 2;
constexpr std::size_t kApostrophe = 6;                            // its position in the first line
constexpr std::size_t kNameStart = 7, kNameLength = 254 - 7 + 1;  // characters of a name line
constexpr std::int64_t kLongestFile = 1 << 20;                    // several times what 255 items fill
constexpr std::size_t kWidthLength = 11 - 7 + 1;                  // from the same place

// A number of the file, and one as a 16-bit integer; none where it does not fit, for a bad file is no fault of the
// program.
template <class Reading>
auto numberOf(TextView text, Reading reading) -> std::optional<decltype(reading(val(text)))> {
  try {
    return reading(val(text));
  } catch (const Fault&) {
    return std::nullopt;
  }
}
std::optional<double> numberOf(TextView text) {
  return numberOf(text, [](double value) { return value; });
}
std::optional<std::int16_t> wholeNumber(TextView text) { return numberOf(text, toInt16); }

ReadResult checkFirstLine(std::int16_t count, TextView head) {
  if (count < 0 || count > kHighestItem || positionOf(head, u"'") != kApostrophe) return ReadResult::notATable;
  const auto number = numberOf(head);
  if (!number) return ReadResult::broken;
  return *number < 100 ? ReadResult::notATable : ReadResult::ok;
}

ReadResult readFirstLine(std::int16_t& count, Text& memo) {
  Text head, reserved, number;
  for (Text* field : {&head, &memo, &reserved, &number})
    if (readField(kItemFile, *field) != FileError::none) return ReadResult::broken;
  const auto value = wholeNumber(number);
  if (!value) return ReadResult::broken;
  count = *value;
  return checkFirstLine(count, head);
}

bool readName(ItemLine& item) {
  Text field;
  if (readField(kItemFile, field) != FileError::none || readField(kItemFile, item.alignment) != FileError::none)
    return false;
  item.name = mid(field, kNameStart, kNameLength);
  return true;
}

// A negative width would cut cells backwards: it counts as unreadable.
bool readWidth(ItemLine& item) {
  Text field;
  if (readField(kItemFile, field) != FileError::none) return false;
  const auto width = wholeNumber(mid(field, kNameStart, kWidthLength));
  item.width = width.value_or(-1);
  return item.width >= 0;
}

ReadResult readOpenFile(TableDescription& table) {
  std::int16_t count = 0;
  if (const ReadResult first = readFirstLine(count, table.memo); first != ReadResult::ok) return first;
  table.items.resize(static_cast<std::size_t>(count) + 1);
  for (ItemLine& item : table.items)
    if (!readName(item)) return ReadResult::broken;
  int sum = 0;
  for (ItemLine& item : table.items) {
    if (!readWidth(item)) return ReadResult::broken;
    sum += item.width;
  }
  return sum > recLen ? ReadResult::tooWide : ReadResult::ok;
}

// The last four digits of base + i, a blank and the apostrophe.
Text lineHead(std::size_t base, std::size_t i) {
  return right(decimal(static_cast<std::int64_t>(base + i)), 4) + u" '";
}

bool writeLines(const TableDescription& table) {
  const auto highest = static_cast<std::int64_t>(table.items.size()) - 1;
  const auto line = [](const Text& text) { return printLine(kItemFile, text) == FileError::none; };
  if (!line(u"100  '" + table.reserved + u"," + table.memo + u",," + decimal(highest))) return false;
  for (std::size_t i = 0; i < table.items.size(); ++i)
    if (!line(lineHead(1000, i) + table.items[i].name + u"," + table.items[i].alignment)) return false;
  for (std::size_t i = 0; i < table.items.size(); ++i)
    if (!line(lineHead(2000, i) + decimal(table.items[i].width))) return false;
  return syncFile(kItemFile) == FileError::none;
}

}  // namespace

ReadResult readDescription(TextView itemFile, TableDescription& out) {
  if (openInput(kItemFile, itemFile, kLongestFile) != FileError::none) return ReadResult::broken;
  TableDescription table;
  const ReadResult result = readOpenFile(table);
  closeFile(kItemFile);
  if (result == ReadResult::ok) out = std::move(table);
  return result;
}

bool writeDescription(TextView itemFile, const TableDescription& description) {
  if (openNewOutput(kItemFile, itemFile) != FileError::none) return false;
  const bool written = writeLines(description);
  const bool closed = closeFile(kItemFile) == FileError::none;
  if (!written || !closed) deleteFile(itemFile);
  return written && closed;
}

}  // namespace zelko
