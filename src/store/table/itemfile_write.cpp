// Writing item files: that of the open table, and that of a rewrite at work.
#include "platform/files/files.h"
#include "store/table/description.h"
#include "store/table/itemfile.h"

namespace zelko {

namespace {

// A new item file stands complete under this name before it takes the place of the old one.
constexpr TextView kUnfinished = u"KSAVE.QQQ";

Text beside(TextView file, TextView name) { return Text(file.substr(0, file.rfind(u'/') + 1)) + Text(name); }

using Texts = std::array<Text, kMaxItems>;
using Widths = std::array<std::int16_t, kMaxItems>;

TableDescription described(int highest, const Texts& names, const Texts& alignments, const Widths& widths) {
  TableDescription table;
  table.memo = tableMemo;
  for (std::size_t i = 0; i < kMaxItems && static_cast<int>(i) <= highest; ++i)
    table.items.push_back({names[i], alignments[i], widths[i]});
  return table;
}

}  // namespace

Text besideTable(TextView name) { return beside(joinName(docDrive, docPath), name); }

bool writeKFileOf(TextView path, TextView drive, const TableDescription& table) {
  const Text target = itemFilePath(path, drive);
  if (isReadOnly(target)) return false;
  const Text unfinished = beside(target, kUnfinished);
  if (!writeDescription(unfinished, table)) return false;
  if (replaceFile(unfinished, target) == FileError::none) return true;
  deleteFile(unfinished);
  return false;
}

bool writeKFile(TextView path, TextView drive) {
  return writeKFileOf(path, drive, described(itemCount, itemName, itemLR, itemWidth));
}

bool writeKFileWork(int count) {
  return writeDescription(besideTable(u"KWORK.QQQ"), described(count, otherItemName, otherItemLR, otherItemWidth));
}

}  // namespace zelko
