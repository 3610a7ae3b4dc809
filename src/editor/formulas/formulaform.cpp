#include "editor/formulas/formulaform.h"

#include <algorithm>
#include <cstddef>

#include "editor/formulas/formula.h"
#include "editor/main/commands.h"
#include "editor/main/inputbox.h"
#include "editor/main/state.h"
#include "editor/show/itemlist.h"
#include "editor/show/showcell.h"
#include "platform/fault.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "platform/text/sjis.h"
#include "store/table/cursor.h"
#include "store/table/table.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

std::array<Text, 7> formulaSlot;

namespace {

constexpr int kKeyColumn = 0, kFormulaColumn = 1;
constexpr int kFirstFreeRow = 4, kLastRow = 10;
constexpr int kListCode = 93;
constexpr int kFirstFormulaKey = key::Num0 + 3;

constexpr TextView kFixedRows[] = {u"左項目横合計", u"上項目縦合計", u"縦項目ﾃﾞｰﾀのMean,SD,u,Nの記入"};

constexpr TextView kReminder = u"なお、ctr+0､ctrl+1､ctrl+2はすでに設定してあり書き換えできません。";

constexpr TextView kExplanation =
    u"。この画面終了後は､ctrl+数字ｷｰで､登録した式を使って計算した数値が､書き込みセルに入力されます。"
    u"下のｸﾞﾘｯﾄﾞの5行目以下に自由に式を登録できます。"
    u"式には数字、プラス+、マイナス-、掛ける*、割る/、整数の割り算\\、べき乗^、括弧()、小数点が使えます。"
    u"アットマーク@の後に項目番号を付けると、その項目のデータの値、@だけのときわ今の項目のデータの値になります。"
    u"例えば、(@5+@)*2。式に空白わ入れません。上下矢印ｷｰで行を選び、式を入力してCRを叩くと登録されます。"
    u"ctrl+Lで項目一覧から項目番号を選べます。"
    u"ctrl+0わ、左項目横合計、今の項目より左の項目の合計です。"
    u"ctrl+1わ、上項目縦合計、今の記録より上の記録の合計です。"
    u"ctrl+2わ、縦項目ﾃﾞｰﾀのMean,SD,u,Nの記入です。";

std::size_t slotOfRow(int row) { return static_cast<std::size_t>(row - kFirstFreeRow); }

int firstRowWithoutFormula() {
  const auto blank = std::find(formulaSlot.begin(), formulaSlot.end(), Text());
  if (blank == formulaSlot.end()) return kFirstFreeRow;
  return kFirstFreeRow + static_cast<int>(blank - formulaSlot.begin());
}

// The value is heard behind the sentence of a dialog that has just closed.
void fillHeard(TextView text) {
  waitPastGate();
  fillInputBox(text);
}

// A value that does not fit: cut to the width of the item to the left, and marked.
void offerCut(const Text& digits) {
  if (!askYesNo(u"計算結果は規定の表示巾を越しています\r" + digits, u"表示巾超過")) return emptyInputBox();
  if (curItem < 1) throw Fault{kSubscript};
  const int width = itemWidth[static_cast<std::size_t>(curItem - 1)];
  fillHeard(fromSjis(toSjis(digits).substr(0, static_cast<std::size_t>(std::max(width, 0)))) + u"%");
}

void registerKeyFormulas() {
  form<frmFOMULA>().showModal();
  dispAll(curItem);
  // What was being typed stays in the box.
  const Text typed = inputText();
  showCell(static_cast<float>(curRec), curItem, typed, {});
}

}  // namespace

void formulaKey(int code) {
  const Text& formula = formulaSlot[static_cast<std::size_t>(code - kFirstFormulaKey)];
  if (trimmed(formula).empty()) return host().beep();
  const auto value = formulaValue(formula);
  if (!value) return showOK(u"式値入力記述式に誤りがあります", u"error in atai");
  const Text digits = trimmed(str(*value));
  const int width = itemWidth[static_cast<std::size_t>(curItem)];
  if (static_cast<int>(sjisLength(digits)) > width - 1) return offerCut(digits);
  fillHeard(digits);
}

CellRules frmFOMULA::cellRules() {
  CellRules rules;
  rules.firstCol = rules.lastCol = kFormulaColumn;
  rules.left = CellLeft::dropped;
  rules.rowsChange = rules.growsOnEnter = false;
  rules.walksGrid = true;
  return rules;
}

frmFOMULA::frmFOMULA() : Form(kName, u"式値入力登録画面") {
  cells_.reshape([this] {
    Grid1.setCols(kFormulaColumn + 1);
    Grid1.setRows(kLastRow + 1);
    Grid1.setCellText(0, kKeyColumn, u"ｷｰ操作");
    Grid1.setCellText(0, kFormulaColumn, u" 式 ");
    for (int row = 1; row <= kLastRow; ++row) {
      Grid1.setCellText(row, kKeyColumn, u"ctrl+" + decimal(row - 1));
      Grid1.setCellText(row, kFormulaColumn, row < kFirstFreeRow ? kFixedRows[row - 1] : formulaSlot[slotOfRow(row)]);
    }
    Grid1.setCell(firstRowWithoutFormula(), kFormulaColumn);
  });
  cells_.on.sentence = [this](int, int) { return rowSentence(); };
  cells_.on.stored = [](int, int, const Text& typed) { return trimmed(withoutLineEnds(typed)); };
  // The rows of the fixed keys refuse every change, whichever way it came.
  cells_.on.refusal = [](int row, int) { return row < kFirstFreeRow ? Text(kReminder) : Text(); };
  cells_.on.onStored = [this](int row, int col) { formulaSlot[slotOfRow(row)] = Grid1.cell(row, col); };
  onKeyDown = [this](KeyEvent& key) { frmFOMULA_KeyDown(key); };
  onActivate = [this] { talkGated(caption() + markStop + rowSentence()); };
  Grid1.onDblClick = [this] { Text1.setFocus(); };
  Command1.onClick = [this] { frmFOMULA_Command1_Click(); };
  Command1.isCancel = true;
  onClose = [this] { frmFOMULA_Command1_Click(); };
  Narration(*this)
      .explain(kExplanation)
      .box(Text1, [this] { return Grid1.cell(Grid1.row(), kKeyColumn) + u"の式" + u"ﾃｷｽﾄﾎﾞｯｸｽ"; })
      .say(Grid1, [this] { return rowSentence(); })
      .say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

Text frmFOMULA::rowSentence() const {
  const Text formula = Grid1.cell(Grid1.row(), kFormulaColumn);
  return Grid1.cell(Grid1.row(), kKeyColumn) + markPause + (formula.empty() ? u"ブランク" : formula);
}

void frmFOMULA::frmFOMULA_KeyDown(KeyEvent& key) {
  if (!key.is(key::letter('L'), shift::Ctrl)) return;
  key.swallow();
  listCaller = kListCode;
  showItemList();
}

void frmFOMULA::addItem(int item) {
  Text1.setText(Text1.content() + u"@" + decimal(item));
  Text1.moveCaretToEnd();
  Text1.setFocus();
}

void frmFOMULA::frmFOMULA_Command1_Click() {
  for (int row = kFirstFreeRow; row <= kLastRow; ++row) formulaSlot[slotOfRow(row)] = Grid1.cell(row, kFormulaColumn);
  screen().unload(*this);
}

void registerFormulas() {
  formulaSlot.fill({});
  registerForm<frmFOMULA>();
  registerCommand(u"mnuFOMULA", registerKeyFormulas);
  registerListCaller(kListCode, [](int item) {
    if (frmFOMULA* there = loadedForm<frmFOMULA>()) there->addItem(item);
  });
}

}  // namespace zelko
