#include "files/output/convert.h"

#include "editor/main/commands.h"
#include "files/output/output.h"
#include "files/output/outputending.h"
#include "files/output/outputform.h"
#include "files/output/outputname.h"
#include "files/picker/deletetable.h"
#include "files/picker/picker.h"
#include "files/picker/pickerform.h"
#include "files/picker/pickeropening.h"
#include "parts/disk/filewords.h"
#include "platform/files/ownedfile.h"
#include "platform/files/workfiles.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "platform/text/sjis.h"
#include "store/records/appender.h"
#include "store/rewrite/rewrite.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"
#include "voice/progress.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kUnfinished = u"HENKAN.QQQ";
constexpr TextView kConfirm = u"確認";
constexpr TextView kFinished = u"作業終了ﾒｯｾ-ｼﾞ";

void tellNotOpened() { tellFailure(u"出力ﾌｧｲﾙが開けません。もう一度確認してください", u"出力ﾌｧｲﾙが開けない"); }

// Characters that fit into a record whole; true where all did.
bool cutToRecord(std::string& bytes) {
  if (bytes.size() <= kDataBytes) return true;
  std::size_t end = 0;
  while (end < bytes.size()) {
    const auto first = static_cast<unsigned char>(bytes[end]);
    const bool leads = (first >= 0x81 && first <= 0x9F) || (first >= 0xE0 && first <= 0xFC);
    const std::size_t next = end + (leads ? 2 : 1);
    if (next > kDataBytes) break;
    end = next;
  }
  bytes.resize(end);
  return false;
}

struct Conversion {
  bool written = false, stopped = false;
  std::int64_t cutLines = 0;
};

bool isUtf8(std::string_view line) {
  const Text text = fromUtf8(line);
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool behindLead = at > 0 && text[at - 1] >= 0xD800 && text[at - 1] < 0xDC00;
    if (text[at] >= 0xDC80 && text[at] <= 0xDCFF && !behindLead) return false;
  }
  return true;
}

// Shift-JIS is what the program writes; a text of this desktop is more often UTF-8, which all its lines show.
bool sourceIsUtf8(const Text& source) {
  OwnedFile text;
  if (text.openInput(source) != FileError::none) return false;
  const int number = text.number();
  bool utf8 = true;
  for (std::string line; utf8 && !atEnd(number) && readLineBytes(number, line) == FileError::none;) utf8 = isUtf8(line);
  return utf8;
}

std::string recordOf(std::string line, bool utf8) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (!utf8) return line;
  if (line.starts_with(kMark)) line.erase(0, kMark.size());
  return toSjis(fromUtf8(line));
}

// A line is a record, left-justified.
Conversion copyLines(const OwnedFile& text, bool utf8, RecordAppender& output) {
  Conversion done;
  LateProgress progress(u"Zelkoﾌｧｲﾙ作成中");
  std::string line;
  while (!atEnd(text.number())) {
    const FileError read = readLineBytes(text.number(), line);
    if (read == FileError::pastEnd) break;
    if (read != FileError::none) return done;
    std::string bytes = recordOf(line, utf8);
    if (!cutToRecord(bytes)) ++done.cutLines;
    if (!output.append(bytes)) return done;
    if (!progress.step(output.appended())) {
      done.stopped = true;
      return done;
    }
  }
  done.written = output.finish();
  return done;
}

// The items of the open table; without one, an ID item that takes the whole line.
TableDescription itemsOfConverted() {
  if (docPath.empty()) return {{{u"ID No", u"L", kDataBytes}}, {}};
  return {itemsOnDisk(), tableMemo};
}

// The new table stands whole beside the old one before it takes its place.
Conversion convert(const Text& source, const Text& fullName) {
  const Text unfinished = fullName.substr(0, fullName.rfind(u'/') + 1) + Text(kUnfinished);
  if (removeOwnName(unfinished) != FileError::none) return {};
  RecordAppender output;
  OwnedFile text;
  const bool utf8 = sourceIsUtf8(source);
  if (text.openInput(source) != FileError::none || output.create(unfinished) != FileError::none) return {};
  Conversion done = copyLines(text, utf8, output);
  Text drive, path;
  splitName(fullName, drive, path);
  done.written = done.written && writeKFileOf(path, drive, itemsOfConverted()) &&
                 replaceFile(unfinished, fullName) == FileError::none;
  if (done.written) output.keep();
  return done;
}

bool canBeRead(const Text& source) { return OwnedFile().openInput(source) == FileError::none; }

bool isInTheWay(const Text& source, const Text& fullName) {
  const bool isSource = isSameFile(fullName, source);
  const bool isOpen = !docPath.empty() && isSameFile(fullName, joinName(docDrive, docPath));
  if (isSource) tellFailure(u"変換元のﾌｧｲﾙと同じです｡", kConfirm);
  if (isOpen && !isSource) tellFailure(u"編集中のﾌｧｲﾙと同じです｡", kConfirm);
  return isSource || isOpen;
}

void tellConverted(const Text& fullName, const Conversion& done) {
  if (done.cutLines > 0) {
    showOK(u"254バイトを超える行が" + decimal(done.cutLines) +
               u"行ありました。超えた部分は新しいﾌｧｲﾙに入っていません。元のﾌｧｲﾙはそのままです",
           kFinished);
  }
  showOK(spokenName(fullName) +
             u"というZelkoﾌｧｲﾙが作成されました｡次にこのﾌｧｲﾙが表示されますが、項目区切りは不適切なものです｡"
             u"ﾌｧｲﾙデザインの変更操作をして､項目の区切り幅などを設定して下さい。",
         kFinished);
}

void showConverted(const Text& fullName) {
  const bool opened = openInPlace(fullName);
  talkLast = 0;
  {
    const Silence silence;
    closeOutputDialog();
  }
  frmDISK* picker = loadedForm<frmDISK>();
  if (!opened || !picker) return;
  mode.clear();
  closeAndEnter(*picker);
}

void runConversion(const Text& fullName) {
  const Text source = pickedFile();
  if (isInTheWay(source, fullName)) return;
  if (!canBeRead(source)) return tellFailure(u"変換元のﾌｧｲﾙが読めません", u"ファイル読み込みエラー");
  if (!mayTakeOutput(fullName)) return tellNotOpened();
  if (fileExists(fullName) && !askYesNo(spokenName(fullName) + u"は既にあります。上書きしますか。", kConfirm)) return;
  const Conversion done = convert(source, fullName);
  if (done.stopped) return talkBehindDialog(u"中止しました。Zelkoﾌｧｲﾙは作られていません。");
  if (!done.written) return tellWriteError();
  tellConverted(fullName, done);
  showConverted(fullName);
}

void askForConverted() {
  const Text source = pickedFile();
  if (source.empty()) return host().beep();
  showOutputDialog(u"CVZLKF", convertedName(source));
}

void openConversion() {
  storeTypedCell();
  showFilePicker(PickFor::text);
}

}  // namespace

void registerConversion() {
  registerOutputJob(u"CVZLKF", {runConversion, {}, OutputManner::replaces});
  registerCommand(u"CVZLKF", askForConverted);
  registerCommand(u"mnuCZLK", openConversion);
}

}  // namespace zelko
