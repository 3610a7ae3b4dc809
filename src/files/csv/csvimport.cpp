#include "files/csv/csvimport.h"

#include "platform/files/blockfiles.h"
#include "platform/files/files.h"
#include "platform/text/number.h"
#include "store/records/appender.h"
#include "store/rewrite/rewrite.h"
#include "store/table/itemfile.h"

namespace zelko {

CsvSurveyed csvSurveyed;

namespace {

class Importing {
 public:
  Importing(CsvFile& file, const CsvImport& import, const CsvGoesOn& goesOn)
      : file_(file), import_(import), goesOn_(goesOn), maker_(itemsOnDisk(), file.isUtf8()) {}

  CsvImported run() {
    CsvImported done;
    done.opened = true;
    RecordAppender table;
    if (table.open(joinName(docDrive, docPath)) != FileError::none) return done;
    done.end = readLines(table);
    done.readable = !file_.failed();
    if (!done.readable) done.end = JobEnd::failed;
    if (done.end != JobEnd::failed && !table.finish()) done.end = JobEnd::failed;
    if (done.end == JobEnd::failed) return done;
    done.records = table.appended();
    done.counts = maker_.counts();
    table.keep();
    return done;
  }

 private:
  JobEnd readLines(RecordAppender& table) {
    CsvReader reader = file_.reader(import_.quotesProtect);
    CsvLine line;
    CacheRow record;
    for (std::int64_t lines = 0;; ++lines) {
      if (lines % kCsvLinesBetweenLooks == 0 && !goesOn_(reader.taken())) return JobEnd::stopped;
      if (!reader.next(line)) return JobEnd::done;
      if (lines == 0 && import_.passesFirstLine) continue;
      maker_.make(line, record);
      if (!table.append({record.data(), record.size()})) return JobEnd::failed;
    }
  }

  CsvFile& file_;
  const CsvImport& import_;
  const CsvGoesOn& goesOn_;
  CsvRecordMaker maker_;
};

}  // namespace

CsvImported importCsv(const CsvImport& import, const CsvGoesOn& goesOn) {
  CsvFile file;
  if (!file.open(import.file)) return {};
  if (file.recognise(goesOn)) return Importing(file, import, goesOn).run();
  CsvImported stopped;
  stopped.opened = true;
  stopped.end = JobEnd::stopped;
  return stopped;
}

Text importedWords(const CsvImported& done) {
  Text words = done.end == JobEnd::stopped ? u"中止しました。ここまでに、" : u"";
  words += decimal(done.records) + u"記録を読み込みました。";
  if (done.counts.cutCells > 0) words += u"項目幅に切ったﾃﾞｰﾀが" + decimal(done.counts.cutCells) + u"件あります。";
  if (done.counts.passedCells > 0)
    words += u"項目数を超えて読み込まなかったﾃﾞｰﾀが" + decimal(done.counts.passedCells) + u"件あります。";
  if (done.counts.lostCharacters > 0)
    words += u"この表で使えない文字が" + decimal(done.counts.lostCharacters) + u"字あり、疑問符になりました。";
  return words;
}

}  // namespace zelko
