// The form that replaces a text in the cells of the open table.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "tablejobs/replace/cellrun.h"
#include "tablejobs/replace/replacing.h"

namespace zelko {

class frmREPLACE : public Form {
 public:
  static constexpr TextView kName = u"frmREPLACE";
  frmREPLACE();

  Label Label1{*this, u"Label1", u"検索文字列"};
  RichTextBox RichTextBox1{*this, u"RichTextBox1"};
  Label Label2{*this, u"Label2", u"置換文字列"};
  RichTextBox RichTextBox2{*this, u"RichTextBox2"};
  Button Command3{*this, u"Command3", u"実行(CR)"};
  Label Label3{*this, u"Label3", u"ﾃﾞﾌｫﾙﾄ(無印)/ｵﾌﾟｼｮﾝ(印有)"};
  CheckBox Check1{*this, u"Check1", u"現在項目/全項目"};
  CheckBox Check2{*this, u"Check2", u"検索文字列を含む場合/一致する場合"};
  CheckBox Check3{*this, u"Check3", u"大小文字無区別/区別"};
  CheckBox Check4{*this, u"Check4", u"一致部置換/全文字置換"};
  CheckBox Check5{*this, u"Check5", u"逐次置換/連続置換"};
  CheckBox Check6{*this, u"Check6", u"記録末/先頭へ検索"};
  Button Command1{*this, u"Command1", u"終了開始項目へ"};
  Button Command4{*this, u"Command4", u"終了(esc)"};

 private:
  void wire();
  void narrate();
  ReplaceRule rule() const;
  Text scopeWords() const;
  void frmREPLACE_Command1_Click();
  void frmREPLACE_Command3_Click();
  void frmREPLACE_Command4_Click();
  void finish(const CellRunResult& result, bool asked);

  Text previousSearch_, previousWith_;
  std::int32_t savedRecord_ = 0;
  std::int16_t savedItem_ = 0;
};

// The form and mnuREPLACE.
void registerReplaceForm();

}  // namespace zelko
