// What table design is made of, and how its controls speak.
#include "files/design/designform.h"

#include "parts/disk/filewords.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/rewrite/rewrite.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "voice/dialogs.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kExplanation =
    u"。表の項目数、各項目の項目名、左づめ　右づめ、項目幅を決めるフォームです。項目区切り設定ヒョウでは、"
    u"リターンキーで　項目名、配置、項目幅の順に　書き込みセルが移動します。シフト　リターンキーで　もどります。"
    u"上下の矢印キーで　項目が移動し、最後の項目で下矢印をたたくと　項目数が増えます。"
    u"シフト　コントロール　デリートで　項目の削除、シフト　コントロール　インサートで　項目の挿入です。"
    u"タブキーで、項目数、表メモ、ファイル名の　テキストボックスや、ボタンに移動します。"
    u"ﾋｮｳの記入が終わったら　決定ボタンを押してください。中止わ　ｴｽｹｰﾌﾟｷｰです。";

constexpr TextView kCountHelp =
    u"コウモクスウを記入するリッチテキストボックスです､項目番号ゼロ番を除いた、項目のかずを記入してください。";

}  // namespace

frmDESIGN::frmDESIGN() : Form(kName, u"項目区切りの設定") {
  cells_.reshape([this] {
    setHeadings();
    startNew();
  });
  boxes_.open(docPath.empty() ? appDir : besideTable({}));
  wireBoxes();
  wireCells();
  wireReference();
  wireButtons();
  unvisible();
  onActivate = [this] { frmDESIGN_Activate(); };
  onClose = [this] { frmDESIGN_Command2_Click(); };
  onUnload = [this] {
    if (mode == word_) mode.clear();
  };
  narrate();
  cells_.enter(1, static_cast<int>(DesignColumn::name));
  itemin.setFocus();
}

void frmDESIGN::take(DesignFor purpose) {
  constexpr TextView kWords[] = {u"", u"tdesign", u"SVCread"};  // in the order of DesignFor
  purpose_ = purpose;
  mode = word_ = kWords[static_cast<std::size_t>(purpose)];
  changesTable_ = purpose == DesignFor::openTable && !docPath.empty();
  Command4.setVisible(purpose == DesignFor::csv);
  if (!changesTable_) return;
  cells_.reshape([this] { startFromTable(); });
  cells_.enter(1, static_cast<int>(DesignColumn::name));
}

void frmDESIGN::startNew() {
  oldItems_ = {-1};
  Grid1.setRows(2);
  setRow(0, {u"ID No", u"L", {}, -1});
  setBoxes({}, {}, appDir + u"NoName");
}

void frmDESIGN::startFromTable() {
  const std::vector<ItemLine> items = itemsOnDisk();
  fill(items);
  Text name = joinName(docDrive, docPath);
  if (name.ends_with(u".txt")) name.erase(name.size() - 4);
  setBoxes(decimal(itemCount), tableMemo, name);
}

void frmDESIGN::setBoxes(TextView count, TextView memo, TextView file) {
  filling_ = true;
  text1.setText(count);
  text2.setText(memo);
  text3.setText(file);
  lastCount_ = count;
  lastMemo_ = memo;
  presetFile_ = lastFile_ = file;
  filling_ = false;
}

void frmDESIGN::wireBoxes() {
  text1.labelledBy = &Label1;
  text2.labelledBy = &Label2;
  text3.labelledBy = &Label10;
  for (Control* control :
       {static_cast<Control*>(&Label2), static_cast<Control*>(&Label10), static_cast<Control*>(&Label4),
        static_cast<Control*>(&Label3), static_cast<Control*>(&Grid1), static_cast<Control*>(&itemin),
        static_cast<Control*>(&Label8), static_cast<Control*>(&Command1), static_cast<Control*>(&Label5)})
    control->place = Place::newRow;
  text1.onChange = [this] { frmDESIGN_box_Change(text1, lastCount_); };
  text2.onChange = [this] { frmDESIGN_box_Change(text2, lastMemo_); };
  text3.onChange = [this] { frmDESIGN_box_Change(text3, lastFile_); };
  for (RichTextBox* box : {&text1, &text2, &text3})
    box->onKeyDown = [this, box](KeyEvent& key) { frmDESIGN_box_KeyDown(*box, key); };
  // Typing replaces the number and the name, and goes on behind the memo.
  for (RichTextBox* box : {&text1, &text3}) {
    box->onGotFocus = [this, box] {
      markWhole(*box);
      marked_ = true;
    };
  }
  text2.onGotFocus = [this] {
    text2.moveCaretToEnd();
    marked_ = false;
  };
  text1.onLostFocus = [this] { frmDESIGN_text1_LostFocus(); };
}

void frmDESIGN::wireCells() {
  itemin.labelledBy = &Label3;
  const auto columnOf = [](int col) { return static_cast<DesignColumn>(col); };
  cells_.on.sentence = [this](int, int) { return cellSentence(); };
  cells_.on.fault = [=](int, int col, const Text& typed) { return faultOfCell(columnOf(col), typed); };
  cells_.on.stored = [=](int, int col, const Text& typed) { return storedCell(columnOf(col), typed); };
  cells_.on.typable = [=](int col, TextView typed) {
    return columnOf(col) == DesignColumn::width ? digitsOf(typed) : Text(typed);
  };
  cells_.on.onAdded = [this](int row) {
    oldItems_.push_back(-1);
    setRow(row - 1, addedRow(row - 1));
    showCount();
  };
  cells_.on.onInserted = [this](int row) { return rowInserted(row - 1); };
  cells_.on.onDeleted = [this](int row) { return rowDeleted(row - 1); };
  cells_.on.onEnd = [] {
    showOK(u"設定された項目数の記入を終えました。項目数を増やす場合は↓を押してください", u"項目数の増加");
  };
}

void frmDESIGN::wireReference() {
  boxes_.shownName = [this](TextView listed) { return listsCsv_ ? Text(listed) : tableOfItemFile(listed); };
  File1.onClick = [this] { frmDESIGN_File1_Click(); };
  const auto takeChosen = [this] { listsCsv_ ? frmDESIGN_Command4_Click() : frmDESIGN_Command3_Click(); };
  File1.onDblClick = takeChosen;
  File1.onKeyPress = [takeChosen](CharEvent& event) {
    if (event.ch != key::Enter) return;
    event.ch = 0;
    takeChosen();
  };
}

void frmDESIGN::wireButtons() {
  Command1.onClick = [this] { frmDESIGN_Command1_Click(); };
  Command2.onClick = [this] { frmDESIGN_Command2_Click(); };
  Command3.onClick = [this] { frmDESIGN_Command3_Click(); };
  Command4.onClick = [this] { frmDESIGN_Command4_Click(); };
  Command4.setVisible(false);
  Command2.isCancel = true;
}

void frmDESIGN::narrate() {
  Narration voice(*this);
  voice.explain(kExplanation);
  voice.box(text1, u"項目数ﾃｷｽﾄﾎﾞｯｸｽ。" + Text(kCountHelp)).box(text2, u"表メモﾃｷｽﾄﾎﾞｯｸｽ");
  voice.box(text3, Label10.caption() + u"ﾃｷｽﾄﾎﾞｯｸｽ。" + Label4.caption());
  voice.box(itemin, [this] { return cellSentence(); });
  boxes_.narrate(voice);
  voice.say(File1, [this] {
    if (File1.listIndex() < 0)
      return u"ファイル、" + (File1.count() == 0 ? Text(kNoFileHere) : Text()) + u"ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ";
    return shapeOfChosen() + u"ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ";
  });
  voice.say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ。" + Label8.caption()).say(Command2, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  voice.say(Command3, [this]() -> Text {
    if (File1.visible() && !listsCsv_)
      return u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ。選択したファイルの　項目設定を　項目区切り設定ヒョウに写し、リストを閉じます。";
    return u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ。他のファイルの　項目設定を参照する　ファイルリストを開きます。";
  });
  voice.say(Command4, [this]() -> Text {
    if (File1.visible() && listsCsv_)
      return u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ。選択したＣＳＶファイルを調べて、項目名と　項目幅を　項目区切り設定ヒョウに書き、リストを閉じ"
             u"ます。";
    return u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ。項目名と　項目幅を　決めるための　ＣＳＶファイルの　リストを開きます。";
  });
}

void frmDESIGN::frmDESIGN_Activate() {
  if (opened_) return;
  opened_ = true;
  // The form below may have spoken when it was shown.
  if (talkMode != 0) waitSec(talkGap);
  talkS(*this, u"ファイルデザインフォームが開かれました。");
}

void frmDESIGN::frmDESIGN_box_Change(RichTextBox& box, Text& previous) {
  if (filling_) {
    previous = box.content();
    return;
  }
  if (const Text line = withoutLineEnds(box.content()); line != box.content()) {
    filling_ = true;
    const Text before = previous;
    box.setText(line);
    box.moveCaretToEnd();
    previous = before;
    filling_ = false;
  }
  sayChange(box, previous);
}

// A text in the place of the whole old one is heard as it is, not as what differs.
void frmDESIGN::sayChange(const RichTextBox& box, Text& previous) {
  if (marked_ && !box.content().empty()) previous.clear();
  marked_ = false;
  talkRichChange(box, previous);
}

// These boxes hold one line: Return goes on to the next control.
void frmDESIGN::frmDESIGN_box_KeyDown(RichTextBox& box, KeyEvent& key) {
  marked_ = isWholeMarked(box);
  if (key.code != key::Enter) return;
  key.swallow();
  if (&box == &text3) return itemin.setFocus();
  if (Control* next = nextControl(&box, 1)) next->setFocus();
}

}  // namespace zelko
