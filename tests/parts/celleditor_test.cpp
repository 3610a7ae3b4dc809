#include "parts/grid/celleditor.h"

#include <doctest/doctest.h>

#include "fixture.h"
#include "platform/forms/form.h"
#include "platform/text/number.h"
#include "platform/text/width.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

using namespace zelko;

namespace {

// A table of conditions: a letter, a number, a text; rows are added as they are needed.
class Board : public Form {
 public:
  static constexpr TextView kName = u"Board";
  Board() : Form(kName, u"表") {
    cells.on.onAdded = [this](int row) { grid.setCellText(row, 0, decimal(row)); };
    cells.on.sentence = [](int row, int col) { return decimal(row) + u"行" + decimal(col) + u"列ﾃｷｽﾄﾎﾞｯｸｽ"; };
    cells.on.stored = [](int, int col, const Text& typed) { return col == 1 ? upperCase(toHalfWidth(typed)) : typed; };
    cells.on.fault = [](int, int col, const Text& typed) -> std::optional<CellFault> {
      if (col != 1 || toHalfWidth(typed) == u"L" || toHalfWidth(typed) == u"N") return std::nullopt;
      return CellFault{{}, u"ＬかＮ", u"誤り", true};
    };
    cells.reshape([this] {
      grid.setCols(4);
      grid.setRows(1);
    });
    cells.addRow();
    cells.enter(1, 1);
    Narration(*this).box(box, u"ﾃｷｽﾄﾎﾞｯｸｽ").say(button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
    box.setFocus();
  }

  static CellRules rules() {
    CellRules rules;
    rules.lastCol = 3;
    rules.passed = {2};
    rules.arrowsLeaveEmpty = rules.overwriteEmpties = rules.toggleBeeps = true;
    return rules;
  }

  Grid grid{*this, u"Grid1"};
  TextBox box{*this, u"Text1"};
  Label mode{*this, u"Label8", u"挿入"};
  Button button{*this, u"Command1", u"検索"};
  CellEditor cells{grid, box, &mode, rules()};

  Text texts() const {
    Text all;
    for (int row = 1; row < grid.rows(); ++row) {
      for (int col = 0; col < 4; ++col) all += grid.cell(row, col) + (col == 3 ? u"/" : u",");
    }
    return all;
  }
};

}  // namespace

TEST_CASE("a table of conditions is filled, corrected, and its rows are moved") {
  Fixture user;
  talkMode = 2;
  user.run([] { form<Board>().show(); });
  user.play("wait 1");
  Board& board = form<Board>();

  user.type(u"x");
  user.press("Enter");  // the wrong letter is told and goes
  CHECK(screen().activeForm()->name() == u"FrmOK");
  user.press("Enter");
  CHECK(board.box.content().empty());
  user.type(u"Ｌ");
  user.press("Enter");  // past the second column
  CHECK(board.cells.col() == 3);
  user.type(u"山");
  user.press("Enter");  // a row is added
  CHECK(board.texts() == u"1,L,,山/2,,,/");
  user.press("Right");  // an empty box lets the cursor out, in both directions
  CHECK(board.cells.col() == 2);
  user.type(u"7");
  user.press("Up");
  CHECK(board.texts() == u"1,L,,山/2,,7,/");

  user.press("Left");
  user.press("Shift+Ctrl+Insert");
  CHECK(board.texts() == u"1,,,/2,L,,山/3,,7,/");
  user.press("Shift+Ctrl+Delete");
  user.press("Down");
  user.press("Down");
  user.press("Shift+Ctrl+Delete");  // the third row goes, the cursor up
  CHECK(board.texts() == u"1,L,,山/2,,7,/");
  CHECK(board.cells.row() == 2);

  user.press("Insert");  // overwriting: the box is empty, and what is not touched stays
  user.press("Up");
  CHECK(board.box.content().empty());
  CHECK(board.cells.textAt(1, 1) == u"L");
  user.press("Enter");
  user.type(u"田");
  user.click("Board.Command1");  // what stands in the box counts for a button
  CHECK(board.texts() == u"1,L,,田/2,,7,/");
}
