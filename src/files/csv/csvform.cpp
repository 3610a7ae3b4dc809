#include "files/csv/csvform.h"

#include "editor/main/commands.h"
#include "files/csv/csvexport.h"
#include "files/csv/csvread.h"
#include "files/output/outputending.h"
#include "files/output/outputtable.h"
#include "parts/disk/filewords.h"
#include "platform/files/files.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kExplanation =
    u"。編集中の表を、ＣＳＶファイルにするフォームです。１記録が１行になり、項目わ　引用符で囲まれ、コンマで区切られま"
    u"す。"
    u"表計算ソフト用の　チェックボックスに　チェックすると、文字コードわ　ＵＴＦ-8になり、最初の行に　項目名が付き、"
    u"データの前後の空白わ　取り除かれます。CRを叩くと　作成が始まり、ｴｽｹｰﾌﾟｷｰで　中止します。";

void openExport() {
  if (!beginJob(false, true)) return;
  unload<frmCSV>();
  form<frmCSV>().showModal();
}

}  // namespace

frmCSV::frmCSV() : Form(kName, u"CSVファイルの作成"), output_(csvNameOf(joinName(docDrive, docPath))) {
  Label4.setCaption(spokenName(output_));
  for (Control* control : {static_cast<Control*>(&Label2), static_cast<Control*>(&Label3),
                           static_cast<Control*>(&Check1), static_cast<Control*>(&Command1)})
    control->place = Place::newRow;
  Command1.onClick = [this] { frmCSV_Command1_Click(); };
  Command2.onClick = [this] { frmCSV_Command2_Click(); };
  Command1.isDefault = true;
  Command2.isCancel = true;
  onActivate = [this] { frmCSV_Activate(); };
  onClose = [this] { frmCSV_Command2_Click(); };
  narrate();
  Command1.setFocus();
}

void frmCSV::narrate() {
  Narration voice(*this);
  voice.explain([this] { return Text(kExplanation) + Label3.caption() + u"わ、" + spokenName(output_) + u"です。"; });
  voice.check(Check1, u"ﾁｪｯｸﾎﾞｯｸｽ").say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ").say(Command2, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

void frmCSV::frmCSV_Activate() {
  if (opened_) return;
  opened_ = true;
  if (talkMode != 0) waitSec(talkGap);
  talkS(*this, caption() + u"フォームが開かれました。" + Label1.caption() + Label2.caption() + Label3.caption() +
                   markPause + spokenName(output_));
}

bool frmCSV::mayWrite() const {
  if (refusedAsOpenTable(output_)) return false;
  if (!mayTakeOutput(output_)) {
    tellFailure(u"出力ﾌｧｲﾙが開けません。もう一度確認してください", u"出力ﾌｧｲﾙが開けない");
    return false;
  }
  return !fileExists(output_) || askYesNo(spokenName(output_) + u"は既にあります。上書きしますか。", u"確認");
}

// The form stands in for the dialog of the progress: its cancel button lives.
JobEnd frmCSV::run() {
  const std::int32_t count = recCount();
  std::int64_t shown = 0;
  const auto goesOn = [&](std::int32_t record) {
    if (const std::int64_t tenths = std::int64_t{record} * 10 / count; tenths != shown) {
      shown = tenths;
      Label4.setCaption(decimal(tenths * 10) + u"%完了");
    }
    return !stopAsked_;
  };
  return exportCsv(output_, Check1.value() == 1, goesOn);
}

void frmCSV::frmCSV_Command1_Click() {
  if (running_ || !mayWrite()) return;
  {
    const Silence silence;
    Command2.setFocus();
  }
  Command1.setEnabled(false);
  Check1.setEnabled(false);
  talkNow(caption() + u"中。" + Command2.caption() + u"ｺﾏﾝﾄﾞぼたん");
  running_ = liveDuringWork = true;
  const JobEnd end = run();
  running_ = liveDuringWork = false;
  close(end);
}

void frmCSV::close(JobEnd end) {
  if (end == JobEnd::done) {
    // It is the end of the job, whatever was said a moment ago.
    talkLast = 0;
    talkCtl(u"作業終了しました");
    if (talkMode != 0) waitSec(talkGap);
  }
  talkLast = 0;
  screen().unload(*this);
  endJob(end, true, end == JobEnd::stopped ? u"中止しました。CSVﾌｧｲﾙは作られていません。" : u"");
}

void frmCSV::frmCSV_Command2_Click() {
  stopAsked_ = true;
  if (!running_) screen().unload(*this);
}

void registerCsv() {
  registerForm<frmCSV>();
  registerCommand(u"mnuCSV", openExport);
  registerCommand(u"csvREAD", csvREAD);
}

}  // namespace zelko
