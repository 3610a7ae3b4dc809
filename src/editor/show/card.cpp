#include "editor/show/card.h"

#include <algorithm>

#include "editor/main/commands.h"
#include "editor/main/form1.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

// The searches, as the main form has them.
void addSearches(Menu& menu) {
  MenuEntry& bar = menu.add(nullptr, u"mnuschs", u"検索(&E)");
  menu.add(&bar, u"mnusch", u"検索", key::function(3)).command = [] {
    recCount() < 1 ? host().beep() : runCommand(u"mnuSEARCH");
  };
  const auto add = [&](TextView name, TextView command, TextView caption, int code, int mask) {
    menu.add(&bar, name, caption, code, mask).command = [command] { runCommand(command); };
  };
  add(u"mnuschN", u"mnuSEARCHN", u"次を検索(&N)", 'N', shift::Ctrl);
  add(u"mnuschP", u"mnuSEARCHP", u"前を検索", 'N', shift::ShiftCtrl);
  add(u"mnuschC", u"mnuSEARCHC", u"検索件数", 'H', shift::ShiftCtrl);
}

}  // namespace

frmKOJIND::frmKOJIND() : Form(kName, u"個別記録表示") {
  addSearches(menu());
  Grid1.setCols(3);
  Grid1.provider = [this](int row, int col) { return cellAtGrid(row, col); };
  Grid1.onRowColChange = [this] {
    if (!painting_ && gateOpens()) talkNow(markedLine());
  };
  Grid1.onKeyPress = [](CharEvent& event) {
    if (event.ch != key::Enter && event.ch != key::Esc) return;
    event.ch = 0;
    mainForm().activate();
  };
  Narration(*this)
      .explain(
          u"。今の記録だけを　1項目1行で　表示しています。上下の矢印キーで　項目を移動すると　項目名と、"
          u"項目データが　読み上げられます。リターンキーまたはescキーで　データ入力に戻ります。")
      .say(Grid1, [this] { return markedLine() + markPause + u"個別記録"; });
  repaint();
}

void frmKOJIND::repaint() {
  painting_ = true;
  if (Grid1.rows() != itemCount + 2) Grid1.setRows(itemCount + 2);
  Grid1.setCell(curItem + 1, 2);
  Grid1.refresh();
  setCaption(u"個別記録表示 記録" + decimal(curRec));
  painting_ = false;
}

Text frmKOJIND::cellAtGrid(int row, int col) const {
  static constexpr TextView kHead[] = {u"項目", u"項目名", u"  データ"};
  if (row == 0) return Text(kHead[std::clamp(col, 0, 2)]);
  if (col == 0) return decimal(row - 1);
  if (col == 1) return trimmed(itemName[static_cast<std::size_t>(row - 1)]);
  return trimmed(cellOfRow(rowOf(curRec), row - 1));
}

Text frmKOJIND::markedLine() const {
  Text cell = Grid1.cell(Grid1.row(), 2);
  return Grid1.cell(Grid1.row(), 1) + markPause + (cell.empty() ? Text(u"ﾌﾞﾗﾝｸ") : cell);
}

}  // namespace zelko
