// The main form: one box to type in, what the current cell is, and the menu. Open for the whole run.
#pragma once

#include "platform/fault.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko {

class Form1 : public Form {
 public:
  static constexpr TextView kName = u"Form1";
  Form1();

  Label Label7{*this, u"Label7", u"ﾃﾞｰﾀ入力"};
  TextBox txtinputbox{*this, u"txtinputbox"};
  Label Label2{*this, u"Label2", u"記録番号 "};
  TextBox txtREC{*this, u"txtREC"};
  Label Label3{*this, u"Label3", u"項目番号"};
  TextBox txtItemnum{*this, u"txtItemnum"};
  RichTextBox RichTextBox1{*this, u"RichTextBox1"};  // name of the current item
  RichTextBox RichTextBox2{*this, u"RichTextBox2"};  // memo of the table
  Label Label12{*this, u"Label12", u"項目数   :"};
  TextBox Text1{*this, u"Text1"};
  Label lblWIDTH{*this, u"lblWIDTH", u"項目幅   :"};
  TextBox txtWIDTH{*this, u"txtWIDTH"};
  Label Label9{*this, u"Label9", u"左/右詰め:"};
  TextBox txtLR{*this, u"txtLR"};
  Label Label4{*this, u"Label4", u"ＩＤ :"};
  Label Label13{*this, u"Label13", u""};
  Label Label6{*this, u"Label6", u"記入項目:"};
  Label Label11{*this, u"Label11", u"全項目"};
  Label Label8{*this, u"Label8", u"字数制限:項目幅"};
  Label Label1{*this, u"Label1", u"ReadOnly!"};
  Label Label5{*this, u"Label5", u"読み上げ:"};
  Label lblSpeek{*this, u"lblSpeek", u"Speek!"};
  Button Command1{*this, u"Command1", u"ｺﾋﾟｰ(&U)"};
  Button Command2{*this, u"Command2", u"消去(&E)"};
  Button Command3{*this, u"Command3", u"項目参照(&L)"};
  Button Command4{*this, u"Command4", u"常表示項目(&A)"};
  Button Command5{*this, u"Command5", u"字数制限(&B)"};
  Timer Timer1{*this, u"Timer1"};  // the walk by characters stands on a kanji

  // 1: the next return to the input box says the item number only.
  std::int16_t itemOnlyReturn = 0;

  // Name, width and alignment of the item, and the memo, into their boxes.
  void showItem(std::int16_t item);
  void showMemo();
  // Writes the item name and the memo where the user changed them and has not left their boxes yet.
  void storeNames();

 private:
  void wireInputBox();
  void wireBoxes();
  void wireButtons();
  void wireForm();
  void labelBoxes();
  void narrate();

  void txtinputbox_Change();
  void txtinputbox_KeyPress(CharEvent& event);
  void txtinputbox_GotFocus();
  void txtREC_Change();
  void txtREC_KeyPress(CharEvent& event);
  void txtREC_LostFocus();
  void txtItemnum_Change();
  void txtItemnum_KeyPress(CharEvent& event);
  void txtItemnum_LostFocus();
  static void otherBox_KeyPress(const TextBox& box, CharEvent& event);
  void txtLR_Change();
  void txtLR_LostFocus();
  static void selectWhole(TextBox& box);
  void announceChange(const TextBox& box);
  void RichTextBox1_Change();
  void RichTextBox1_LostFocus();
  void RichTextBox2_Change();
  void RichTextBox2_LostFocus();
  void Form_KeyDown(KeyEvent& event);
  void Form_Unload();

  std::int16_t shownItem_ = 0;  // the item and the table that the boxes show
  Text shownPath_;
  bool nameTyped_ = false, memoTyped_ = false;
  Text lastName_, lastMemo_;  // the two rich boxes at their last change
};

// The main form on every way that begins with a key or a command of the editor: it is there then. A fault where it
// isn't. Who may come before it uses form<Form1>() or loadedForm<Form1>().
inline Form1& mainForm() {
  if (Form1* there = loadedForm<Form1>()) return *there;
  throw Fault{u"編集画面がありません。"};
}

}  // namespace zelko
