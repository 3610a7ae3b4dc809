#include "tablejobs/extract/form7.h"

#include <array>

#include "editor/main/state.h"
#include "editor/show/itemlist.h"
#include "editor/show/sheet.h"
#include "parts/ask/typed.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "platform/text/width.h"
#include "store/records/walk.h"
#include "store/table/cursor.h"
#include "voice/dialogs.h"
#include "voice/narration.h"

namespace zelko {

namespace {

constexpr int kTypeCol = 1, kItemCol = 2, kRelationCol = 3, kValueCol = 4;
constexpr int kListCode = 85;
constexpr int kCharacterTwips = 120;
constexpr std::array<int, 5> kWidths = {3, 2, 4, 4, 100};  // characters
// What a narrow column has room for; the labels tell it whole.
constexpr std::array<TextView, 5> kShortHeadings = {u"番", u"型", u"項目", u"記号", u"条件"};
constexpr Colour kYellow = 0x00FFFF, kWhite = 0xFFFFFF;
constexpr TextView kFaultTitle = u"検索条件表の誤り";

std::optional<CellFault> faultOfCell(int col, const Text& typed) {
  if (col == kTypeCol && !typedLetter(typed, u"NL"))
    return CellFault{{}, u"Ｌ(文字比較)かＮ(数値比較）のみを入力して下さい", Text(kFaultTitle), true};
  if (col == kItemCol && !trimmed(typed).empty() && !typedItem(typed))
    return CellFault{{}, u"そんな項目番号はありません", Text(kFaultTitle), true};
  return std::nullopt;
}

Text storedCell(int col, const Text& typed) {
  const Text line = withoutLineEnds(typed);
  return col == kTypeCol ? upperCase(typedCode(line)) : col == kItemCol ? typedCode(line) : line;
}

}  // namespace

CellRules Form7::cellRules() {
  CellRules rules;
  rules.firstCol = kTypeCol;
  rules.lastCol = kValueCol;
  rules.overwriteEmpties = rules.arrowsLeaveEmpty = rules.toggleBeeps = true;
  return rules;
}

ExtractionRules Form7::rules() {
  ExtractionRules rules;
  rules.ready = [this] { return ready(); };
  rules.passes = [this](const WalkedRecord& record) -> std::optional<std::int16_t> {
    if (!test_->passes(record)) return std::nullopt;
    return toInt16(val(tested_.back().item));
  };
  rules.automatic = [this] { return Check2.value() == 1; };
  rules.head = [] { return Text(u"指定条件に合致する記録"); };
  rules.onSkip = [this] {
    if (Check1.value() == 1) curItem = 0;
  };
  return rules;
}

Form7::Form7()
    : Form(kName, u"項目ﾃﾞｰﾀ条件による記録の抽出"),
      extraction_({*this, Text1, Command1, Command2, Command3, Command4, Label1, Label9}, rules()) {
  mode = u"srch";
  Grid1.setCols(kValueCol + 1);
  Grid1.setRows(3);
  for (int row = 1; row < Grid1.rows(); ++row) Grid1.setCellText(row, 0, decimal(row));
  for (int col = 0; col <= kValueCol; ++col) {
    const auto at = static_cast<std::size_t>(col);
    Grid1.setCellText(0, col, kShortHeadings[at]);
    Grid1.setColWidth(col, kWidths[at] * kCharacterTwips);
  }
  Grid1.setCell(1, kTypeCol);
  wire();
  narrate();
  cells_.show();
  Text1.setFocus();
}

void Form7::wire() {
  for (Control* control :
       {static_cast<Control*>(&Label2), static_cast<Control*>(&Label3), static_cast<Control*>(&Label4),
        static_cast<Control*>(&Label5), static_cast<Control*>(&Label6), static_cast<Control*>(&Grid1),
        static_cast<Control*>(&Text1), static_cast<Control*>(&Label7), static_cast<Control*>(&Check2),
        static_cast<Control*>(&Check3), static_cast<Control*>(&Command1), static_cast<Control*>(&Label1)})
    control->place = Place::newRow;
  cells_.on.sentence = [this](int row, int col) { return cellSentence(row, col); };
  cells_.on.fault = [](int, int col, const Text& typed) { return faultOfCell(col, typed); };
  cells_.on.stored = [](int, int col, const Text& typed) { return storedCell(col, typed); };
  cells_.on.onEntered = [this](int, int) { markHeading(); };
  cells_.on.onAdded = [this](int row) { Grid1.setCellText(row, 0, decimal(row)); };
  appendHandler(Text1.onKeyDown, [this](KeyEvent& key) { Form7_Text1_KeyDown(key); });
}

Label& Form7::heading(int col) {
  Label* const headings[] = {&Label2, &Label3, &Label4, &Label5, &Label6};
  return *headings[col];
}

void Form7::markHeading() {
  for (int col = 0; col <= kValueCol; ++col) heading(col).setBackColour(col == cells_.col() ? kYellow : kWhite);
}

void Form7::Form7_Text1_KeyDown(KeyEvent& key) {
  if (!key.is('L', shift::Ctrl)) return;
  key.swallow();
  listCaller = kListCode;
  showItemList();
}

// A condition takes the number of the item, its value the item itself.
void Form7::takeItem(int item) {
  const int col = cells_.col();
  if (col != kItemCol && col != kValueCol) return host().beep();
  Text1.setFocus();
  Text1.setText(col == kItemCol ? decimal(item) : Text1.content() + u"@" + decimal(item));
  Text1.moveCaretToEnd();
}

// --- The conditions ----------------------------------------------------------------------------------------------

ConditionLogic Form7::logic() const { return {Check1.value() == 1, Check3.value() == 1}; }

std::vector<ConditionRow> Form7::rowsOfGrid() const {
  std::vector<ConditionRow> rows;
  for (int row = 1; row < Grid1.rows(); ++row)
    rows.push_back({Grid1.cell(row, kTypeCol), Grid1.cell(row, kItemCol), Grid1.cell(row, kRelationCol),
                    Grid1.cell(row, kValueCol)});
  return rows;
}

Text Form7::checkCondTable() {
  std::vector<ConditionRow> rows = rowsOfGrid();
  const Text message = checkConditions(rows, logic().caseCounts);
  if (rows.empty()) return message;
  cells_.reshape([&] {
    Grid1.setRows(static_cast<int>(rows.size()) + 1);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const Text* cells[] = {&rows[i].type, &rows[i].item, &rows[i].relation, &rows[i].value};
      for (int col = kTypeCol; col <= kValueCol; ++col)
        Grid1.setCellText(static_cast<int>(i) + 1, col, *cells[col - kTypeCol]);
    }
  });
  return message;
}

// The table is made into a test anew only where it has changed.
bool Form7::ready() {
  if (!cells_.store()) return false;
  if (test_ && rowsOfGrid() == tested_ && logic() == testedLogic_) return true;
  const Text message = checkCondTable();
  if (!message.empty()) {
    host().beep();
    tellCellFault({{}, message, Text(kFaultTitle)}, Text1);
    return false;
  }
  tested_ = rowsOfGrid();
  testedLogic_ = logic();
  test_.emplace(tested_, testedLogic_);
  return true;
}

}  // namespace zelko
