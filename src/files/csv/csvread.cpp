#include "files/csv/csvread.h"

#include <utility>

#include "files/csv/csvimport.h"
#include "files/output/outputtable.h"
#include "files/picker/picker.h"
#include "files/picker/pickerform.h"
#include "platform/files/blockfiles.h"
#include "platform/host.h"
#include "store/table/cursor.h"
#include "store/table/notice.h"
#include "store/table/readonly.h"
#include "voice/progress.h"
#include "voice/talk.h"

namespace zelko {

namespace {

CsvImported importBehindDialog(const CsvImport& import) {
  Progress progress(u"CSVﾌｧｲﾙ変換、読み込み中", lengthOf(import.file));
  return importCsv(import, [&](std::int64_t bytes) { return progress.step(bytes); });
}

// The picker stays, so that another file can be chosen.
void tellFailed(const CsvImported& done) {
  if (!done.opened) return tellFailure(u"ﾌｧｲﾙがオープンできません。ﾌｧｲﾙ名を確認してください", u"確認");
  if (!done.readable) return tellFailure(u"CSVﾌｧｲﾙが読めません", u"ファイル読み込みエラー");
  tellWriteError();
}

}  // namespace

void csvREAD() {
  const frmDISK* picker = loadedForm<frmDISK>();
  const Text file = pickedFile();
  if (!picker || file.empty()) return host().beep();
  if (refusedAsReadOnly() || refusedAsOpenTable(file)) return;
  const bool heading = csvSurveyed.heading && csvSurveyed.file == file;
  const CsvImported done = importBehindDialog({file, picker->Check1.value() == 1, heading});
  if (done.end == JobEnd::failed) return tellFailed(done);
  csvSurveyed = {};
  mode.clear();
  {
    const Silence silence;
    closeFilePicker();
  }
  endJob(done.end, false, importedWords(done));
}

}  // namespace zelko
