#include "tablejobs/sort/msortform.h"

#include "editor/main/state.h"
#include "editor/show/itemlist.h"
#include "parts/ask/typed.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/table/table.h"
#include "tablejobs/sort/sortmanykeys.h"
#include "voice/cellhooks.h"
#include "voice/dialogs.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kPriority = 0, kItem = 1, kItemName = 2, kDirection = 3;
constexpr int kCharacter = 120;  // twips
constexpr int kListCode = 95;

constexpr TextView kExplanation =
    u"。複数の項目を　並べ替えの　キーにするフォームです。ヒョウの１行が　ひとつのキーで、上の行ほど　優先度が　高くな"
    u"ります。"
    u"各行に　項目番号と、昇順わＡ、降順わＤを　記入してください。"
    u"リターンキーで　項目番号、昇順降順、次の行の順に　書き込みセルが移動します。上下の矢印キーで　行が移動し、最後の"
    u"行で"
    u"下矢印をたたくと　行が増えます。シフト　コントロール　インサートで　行の挿入、シフト　コントロール　デリートで　"
    u"行の削除、"
    u"コントロール　Ｌで　項目一覧です。"
    u"タブキーで　実行ボタンに移動し　CRを叩くと　並べ替えが始まります。中止わ　ｴｽｹｰﾌﾟｷｰです。";

}  // namespace

CellRules frmMSORT::cellRules() {
  CellRules rules;
  rules.firstCol = kItem;
  rules.lastCol = kDirection;
  rules.passed = {kItemName};
  rules.overwriteEmpties = true;
  rules.arrowsLeaveEmpty = true;
  rules.toggleBeeps = true;
  return rules;
}

frmMSORT::frmMSORT() : Form(kName, u"多重記録並べかえ") {
  constexpr TextView kHeadings[] = {u"優先度", u"項目N0", u"項目名", u"A/D"};
  constexpr int kWidths[] = {7, 7, 15, 7};
  cells_.reshape([&] {
    Grid1.setCols(4);
    Grid1.setRows(2);
    for (int col = 0; col < 4; ++col) {
      Grid1.setCellText(0, col, kHeadings[col]);
      Grid1.setColWidth(col, kWidths[col] * kCharacter);
    }
    Grid1.setCellText(1, kPriority, decimal(1));
    Grid1.setCell(1, kItem);
  });
  wireCells();
  for (Control* control :
       {static_cast<Control*>(&Grid1), static_cast<Control*>(&Text1), static_cast<Control*>(&Command1)})
    control->place = Place::newRow;
  Text1.labelledBy = &Label2;
  Command1.onClick = [this] { frmMSORT_Command1_Click(); };
  Command2.onClick = [this] { frmMSORT_Command2_Click(); };
  Command2.isCancel = true;
  onKeyDown = [this](KeyEvent& key) { frmMSORT_KeyDown(key); };
  onActivate = [this] { frmMSORT_Activate(); };
  onClose = [this] { frmMSORT_Command2_Click(); };
  narrate();
  cells_.show();
  Text1.setFocus();
}

void frmMSORT::wireCells() {
  cells_.on.sentence = [this](int row, int col) { return cellSentence(row, col); };
  cells_.on.stored = [](int, int col, const Text& typed) {
    const Text code = typedCode(typed);
    return col == kDirection ? upperCase(code) : code;
  };
  cells_.on.fault = [this](int, int col, const Text& typed) -> std::optional<CellFault> {
    if (col != kItem || typedCode(typed).empty() || typedItem(typed)) return std::nullopt;
    CellFault fault{{}, u"そんな項目番号はありません", u"記入の誤り"};
    fault.empties = true;
    return fault;
  };
  cells_.on.refusal = [this](int row, int col) {
    return col == kItemName ? nameOfRow(row) + u"、項目名は項目番号で決まります" : Text();
  };
  cells_.on.onStored = [this](int row, int) { Grid1.setCellText(row, kItemName, nameOfRow(row)); };
  cells_.on.onEntered = [this](int row, int col) {
    Label1.setCaption(u"優先度" + decimal(row));
    Label2.setCaption(promptOf(row, col));
  };
  cells_.on.onAdded = [this](int row) { Grid1.setCellText(row, kPriority, decimal(row)); };
}

void frmMSORT::narrate() {
  Narration voice(*this);
  voice.explain(kExplanation);
  voice.box(Text1, [this] { return cellSentence(cells_.row(), cells_.col()); });
  voice.say(Command1, [] { return frmMSORT_Command1_GotFocus(); }).say(Command2, u"キャンセルコマンドボタン");
}

void frmMSORT::frmMSORT_Activate() {
  if (opened_) return;
  opened_ = true;
  if (talkMode != 0) waitSec(talkGap);
  talkS(*this, caption() + u"フォームが開かれました。" + cellSentence(cells_.row(), cells_.col()));
}

void frmMSORT::frmMSORT_KeyDown(KeyEvent& key) {
  if (!key.is(key::letter('L'), shift::Ctrl)) return;
  key.swallow();
  listCaller = kListCode;
  cellHooks.showItemList();
}

void frmMSORT::takeItem(int item) {
  cells_.enter(cells_.row(), kItem);
  Text1.setText(decimal(item));
  Text1.moveCaretToEnd();
  Text1.setFocus();
}

Text frmMSORT::frmMSORT_Command1_GotFocus() { return u"実行コマンドボタン"; }

Text frmMSORT::nameOfRow(int row) const {
  const auto item = typedItem(Grid1.cell(row, kItem));
  return item ? trimmed(itemName[static_cast<std::size_t>(*item)]) : Text();
}

Text frmMSORT::promptOf(int row, int col) const {
  if (col == kItem) return u"並べ替え基準となる項目番号を";
  if (col == kItemName) return u"項目名";
  const Text name = nameOfRow(row);
  return (name.empty() ? Text() : name + markPause) + u"Ａ昇順(ABC..)またはＤ降順（zxy..）を記入";
}

Text frmMSORT::cellSentence(int row, int col) const {
  const Text text = cells_.textAt(row, col);
  const Text head = (text.empty() ? Text(u"ブランク") : text) + markStop + u"セルニュウリョクテキストボックス" +
                    markPause + u"優先度" + decimal(row) + markPause + promptOf(row, col);
  if (col == kItemName) return head;
  return head + (col == kItem ? u"　ﾆｭｳﾘｮｸｼﾃｸﾀﾞｻｲ" : u"　ｼﾃｸﾀﾞｻｲ");
}

void frmMSORT::enableButtons(bool enabled) {
  const Silence silence;
  Command1.setEnabled(enabled);
  Command2.setEnabled(enabled);
}

std::vector<SortRow> frmMSORT::rows() const {
  std::vector<SortRow> all;
  for (int row = 1; row < Grid1.rows(); ++row)
    all.push_back({cells_.textAt(row, kItem), cells_.textAt(row, kDirection)});
  return all;
}

bool frmMSORT::checkTable() {
  const SortTableFault fault = checkSortTable(rows(), keys_);
  if (fault.message.empty()) return true;
  host().beep();
  cells_.reshape([&] { Grid1.setCell(fault.row + 1, fault.direction ? kDirection : kItem); });
  tellCellFault({{}, fault.message, u"検索条件表の誤り"}, Text1);
  return false;
}

void frmMSORT::frmMSORT_Command1_Click() {
  if (!cells_.store() || !checkTable()) return;
  enableButtons(false);
  sortByTable(*this);
}

void frmMSORT::frmMSORT_Command2_Click() { leaveSortTable(*this); }

void registerSortTable() {
  registerForm<frmMSORT>();
  registerListCaller(kListCode, [](int item) {
    if (frmMSORT* there = loadedForm<frmMSORT>()) there->takeItem(item);
  });
}

}  // namespace zelko
