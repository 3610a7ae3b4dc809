#include "editor/realign.h"

#include <utility>

#include "editor/moves.h"
#include "store/cursor.h"
#include "store/itemfile.h"
#include "store/notice.h"
#include "store/records.h"

namespace zelko {
namespace {

constexpr int kDataFile = 1;

bool realignRecord(std::int32_t record, std::size_t start, std::size_t width, TextView letter) {
  CacheRow row;
  if (!getRec(kDataFile, record, row)) return true;
  std::string bytes(row.data(), row.size());
  std::string cell = bytes.substr(start, width);
  std::string moved = alignedCell(cell, letter);
  return moved == cell || putRec(kDataFile, record, bytes.replace(start, width, moved));
}

}  // namespace

Text alignmentLetter(TextView typed) {
  Text letter = upperCase(trimmed(typed));
  constexpr char16_t kWideA = u'Ａ', kWideZ = u'Ｚ';
  for (char16_t& ch : letter) {
    if (ch >= kWideA && ch <= kWideZ) ch = static_cast<char16_t>(ch - kWideA + u'A');
  }
  return letter;
}

std::string alignedCell(std::string_view cell, TextView letter) {
  std::size_t first = cell.find_first_not_of(' ');
  if (first == std::string_view::npos) return std::string(cell);
  std::string text(cell.substr(first, cell.find_last_not_of(' ') - first + 1));
  std::string blanks(cell.size() - text.size(), ' ');
  return letter == u"R" ? blanks + text : text + blanks;
}

void realignItem(std::int16_t item, TextView letter) {
  auto i = static_cast<std::size_t>(item);
  Text before = std::exchange(itemLR[i], Text(letter));
  if (!writeKFile(docPath, docDrive)) {
    itemLR[i] = before;
    return tellWriteError();
  }
  flushRec();
  auto start = static_cast<std::size_t>(itemStart[i] - 1);
  auto width = std::min(static_cast<std::size_t>(itemWidth[i]),
                        std::size_t{kDataBytes} - std::min(start, std::size_t{kDataBytes}));
  std::int32_t count = recCount();
  for (std::int32_t record = 1; record <= count; ++record) {
    if (!realignRecord(record, start, width, letter)) break;
  }
  loadCache(curRec);
  dispAll(curItem);
  showCell(static_cast<float>(curRec), curItem, u"", u"");
}

}  // namespace zelko
