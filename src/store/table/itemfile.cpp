// The item file: where it lies, and the table descriptions filled from it.
#include "store/table/itemfile.h"

#include "platform/files/files.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/description.h"
#include "store/table/mainform.h"
#include "store/table/notice.h"
#include "store/table/opening.h"

namespace zelko {

namespace {

void tellUnreadable(ReadResult result) {
  constexpr TextView kNoTable = u"Zelkoﾌｧｲﾙでないか、項目設定を記述したﾌｧｲﾙが不良です";
  if (result == ReadResult::notATable) tellFailure(kNoTable, u"項目ﾌｧｲﾙ読込エラー");
  if (result == ReadResult::broken) tellFailure(kNoTable, u"項目挿入不可能");
  if (result == ReadResult::tooWide) tellFailure(decimal(recLen) + u"文字ﾌｧｲﾙでありません.", u"ﾌｧｲﾙ長エラー");
}

}  // namespace

Text itemFilePath(TextView path, TextView drive) {
  const std::size_t slash = path.rfind(u'/');
  const std::size_t name = slash == TextView::npos ? 0 : slash + 1;
  const Text wanted = joinName(drive, Text(path.substr(0, name)) + u"K" + Text(path.substr(name)));
  return findIgnoringCase(wanted).value_or(wanted);
}

bool readToOpen(TextView path, TextView drive, TableDescription& out) {
  showReadOnlyMark(false);
  const ReadResult result = readDescription(itemFilePath(path, drive), out);
  if (result == ReadResult::ok) return true;
  closeAll();
  tellUnreadable(result);
  return false;
}

void adopt(const TableDescription& table) {
  itemCount = static_cast<std::int16_t>(table.items.size() - 1);
  itemWidth.fill(0);
  for (std::size_t i = 0; i < table.items.size(); ++i) {
    itemName[i] = table.items[i].name;
    itemLR[i] = table.items[i].alignment;
    itemWidth[i] = itemWidthLoaded[i] = table.items[i].width;
  }
  tableMemo = table.memo;
}

void readKFile(TextView path, TextView drive, Text& error) {
  TableDescription table;
  error.clear();
  if (readToOpen(path, drive, table))
    adopt(table);
  else
    error = u"error";
}

void readKFileOther(TextView path, TextView drive, Text& error, bool closesFiles) {
  TableDescription table;
  error.clear();
  showReadOnlyMark(false);
  const ReadResult result = readDescription(itemFilePath(path, drive), table);
  if (result != ReadResult::ok) {
    if (closesFiles) closeAll();
    tellUnreadable(result);
    error = u"error";
    return;
  }
  otherItemCount = static_cast<std::int16_t>(table.items.size() - 1);
  otherItemStart[0] = 1;
  for (std::size_t i = 0; i < table.items.size(); ++i) {
    otherItemName[i] = table.items[i].name;
    otherItemLR[i] = table.items[i].alignment;
    otherItemWidth[i] = table.items[i].width;
    otherItemStart[i + 1] = static_cast<std::int16_t>(otherItemStart[i] + otherItemWidth[i]);
  }
}

}  // namespace zelko
