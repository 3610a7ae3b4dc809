// The form that searches the table for a string.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "tablejobs/search/search.h"

namespace zelko {

// What the form was left with, and what it starts with: module-wide, for the keys that search without it.
extern std::optional<SearchSettings> lastSearch;
extern std::int16_t searchItem;  // chosen through Check1
extern std::optional<SearchConditions> searchConditions;

class frmSRCH : public Form {
 public:
  static constexpr TextView kName = u"frmSRCH";
  frmSRCH();

  Label Label1{*this, u"Label1", u"検索文字列"};
  TextBox Text1{*this, u"Text1"};
  Button Command1{*this, u"Command1", u"検索"};
  // A heading: a frame would not wrap its title in large type.
  Label Frame1{*this, u"Frame1", u"検索条件ﾃﾞﾌｫﾙﾄ(無印)／ｵﾌﾟｼｮﾝ(印あり)"};
  CheckBox Check1{*this, u"Check1", u"検索項目指定／全項目を検索"};
  CheckBox Check2{*this, u"Check2", u"検索文字列を含む場合／一致する場合"};
  CheckBox Check3{*this, u"Check3", u"大小文字無区別／区別"};
  CheckBox Check4{*this, u"Check4", u"記録末へ検索／前へ検索"};
  CheckBox Check5{*this, u"Check5", u"かな・全半角を区別しない"};
  Button Command2{*this, u"Command2", u"検索前状態"};
  Button Command3{*this, u"Command3", u"検索終(ESC)"};
  Label Label3{*this, u"Label3", u"検索項目"};
  Label Label2{*this, u"Label2", u"全項目"};
  Label LabelIX{*this, u"LabelIX", u""};
  Timer Timer1{*this, u"Timer1"};

  // From now on a plain question for the job of that word; the answer is searchConditions.
  void askOnly(TextView job);

  // The direction that a search from the cursor's place takes.
  void chooseDirection();
  // The conditions in words.
  Text infG() const;

 private:
  void wireBoxes();
  void wireButtons();
  void narrate();
  Text startOfSearch() const;
  SearchSettings settings() const;
  void showItem();

  void frmSRCH_Activate();
  void frmSRCH_Unload();
  void frmSRCH_Text1_GotFocus();
  void frmSRCH_Text1_KeyDown(KeyEvent& key);
  void frmSRCH_Check1_KeyPress(CharEvent& event);
  void frmSRCH_Check1_Click();
  void frmSRCH_Command1_Click();
  void frmSRCH_Command2_Click();
  void frmSRCH_Command3_Click();
  void frmSRCH_Timer1_Timer();

  Scan scan();
  bool goOn(CellAt at);
  void found(CellAt at);
  void tellRound(CellAt at);
  void leave(CellAt cursor);
  void enableAll(bool enabled);

  bool asksOnly() const { return !asksFor_.empty(); }

  Text asksFor_;  // the job that it asks for; empty where it searches
  CellAt saved_;  // the cursor when the form was loaded
  SearchRound round_;
  bool scanning_ = false, stopAsked_ = false, found_ = false;
  std::int32_t count_ = 0;  // of records, while a scan runs
};

// 1 shuts the editor's forms out while the scan moves the cursor, 0 lets them in again.
void frm1lock(int locked);

}  // namespace zelko
