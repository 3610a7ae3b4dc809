#include "parts/report/report.h"

#include "parts/disk/filewords.h"
#include "platform/files/workfiles.h"
#include "platform/host.h"
#include "platform/text/daytime.h"
#include "store/table/description.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "store/table/table.h"

namespace zelko {

namespace {

constexpr TextView kTitle = u"KEKKA.TXT";

// The open table without its folder.
Text tableName() { return docPath.substr(docPath.rfind(u'/') + 1); }

// A table "EKKA" has its items there, a table "KEKKA" its records.
bool isFileOfTable(const Text& path) {
  TableDescription table;
  const auto isItemFile = [&](const Text& file) {
    return fileExists(file) && readDescription(file, table) == ReadResult::ok;
  };
  return isItemFile(path) || isItemFile(itemFilePath(path, {}));
}

}  // namespace

Text resultFile(TextView folder) {
  const Text path = pathIn(folder, u"KEKKA.TXT");
  return findIgnoringCase(path).value_or(path);
}

bool Report::open(TextView folder, bool anew) {
  path_ = resultFile(folder);
  failed_ = false;
  written_ = 0;
  if (isFileOfTable(path_)) {
    tellFailure(u"このフォルダのKEKKA.TXTは、表のﾌｧｲﾙです。別のフォルダを指定してください", kTitle);
    return false;
  }
  if (isLink(path_)) {
    tellFailure(u"このフォルダのKEKKA.TXTは、別の場所のﾌｧｲﾙへのﾘﾝｸです。別のフォルダを指定してください", kTitle);
    return false;
  }
  if ((anew ? file_.openOutput(path_) : file_.openAppend(path_)) == FileError::none) return true;
  tellFailure(spokenName(path_) + u"が開けません。フォルダを確認してください", kTitle);
  return false;
}

void Report::line(TextView text) {
  written_ += text.size() + 2;
  if (printLine(file_.number(), text) != FileError::none) failed_ = true;
}

Text fileLine() { return u"ﾌｧｲﾙ名:" + tableName(); }

Text timeLine() {
  const DateTime now = host().now();
  return PrintLine().text(shortDate(now)).zone().text(shortTime(now)).line();
}

void Report::head(TextView title) {
  head_.clear();
  for (const Text& text : {Text(title), fileLine(), timeLine()}) {
    line(text);
    head_ += text + kLineEnd;
  }
}

bool Report::close() {
  if (file_.close() == FileError::none && !failed_) return true;
  tellFailure(spokenName(path_) + u"に書き込めませんでした。ディスクの空きとフォルダを確認してください", kTitle);
  return false;
}

PrintLine recordsOfAccess(std::int32_t first, std::int32_t last) {
  PrintLine line;
  line.text(u"/Access File(A) Name:" + tableName()).text(u"/Record:").number(first).text(u" ---- ").number(last);
  return line;
}

PrintLine recordsOfGroups(std::int32_t first, std::int32_t last) {
  PrintLine line;
  line.text(u"■ファイル名:" + tableName()).text(u"(Record:").number(first).text(u" ---- ").number(last).text(u")");
  return line;
}

}  // namespace zelko
