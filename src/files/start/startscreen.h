// The start screen: the entry of the program. It opens the table that the command line names, or lets the user choose
// one.
#pragma once

#include <cstdint>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/grid.h"

namespace zelko {

class FrmLunch : public Form {
 public:
  static constexpr TextView kName = u"FrmLunch";
  // Reads the settings of speech, refreshes the sample board and sets everything to its start.
  FrmLunch();

  Label Label1{*this, u"Label1", u"Zelko"};
  Label Label2{*this, u"Label2", u"音声案内付きﾃｷｽﾄﾃﾞｰﾀ管理・編集・集計ｿﾌﾄ"};
  Label Label5{*this, u"Label5", u"Ver.3.3"};
  Button Command1{*this, u"Command1", u"新規作成(Y)"};
  Button Command2{*this, u"Command2", u"既存ファイル(N)"};
  Button Command3{*this, u"Command3", u"終了(ESC)"};
  CheckBox Check2{*this, u"Check2", u"読み上げ機能を使う"};
  PictureBox Picture1{*this, u"Picture1"};
  Label Label3{*this, u"Label3", u"家計簿"};
  PictureBox Picture2{*this, u"Picture2"};
  Label Label6{*this, u"Label6", u"アドレス帖"};
  PictureBox Picture3{*this, u"Picture3"};
  Label Label7{*this, u"Label7", u"20バイト10項目集計表"};
  PictureBox Picture4{*this, u"Picture4"};
  Label Label8{*this, u"Label8", u"4バイト50項目集計表"};
  PictureBox Picture5{*this, u"Picture5"};
  Label Label9{*this, u"Label9", u"2バイト100項目集計表"};
  PictureBox Picture6{*this, u"Picture6"};
  Label Label10{*this, u"Label10", u"1行40バイト原稿用紙"};
  RichTextBox Text1{*this, u"Text1"};
  RichTextBox Text2{*this, u"Text2"};
  RichTextBox Text3{*this, u"Text3"};
  RichTextBox Text4{*this, u"Text4"};
  Timer Timer1{*this, u"Timer1"};

  // Opens the table that the command line names, in double quotes or bare; false, and the start screen stays, after a
  // message.
  bool openFromCommandLine(TextView commandLine);
  // Opens a model table (1..6) or a sample (100, 101) and enters the editor; `error` is empty on success. A missing
  // item file is healed by a copy of both stored files.
  void fopen(int index, Text& error);

 private:
  void buildMenu();
  void buildTiles();
  void writeHints();
  void narrate();
  void tile(PictureBox& picture, Label& label, int index);
  void open(int index);
  void switchOn(std::int16_t level);

  void FrmLunch_Activate();
  void FrmLunch_KeyDown(KeyEvent& key);
  void FrmLunch_KeyPress(CharEvent& event);
  void FrmLunch_Timer1_Timer();
  void FrmLunch_Command1_Click();
  void FrmLunch_Command2_Click();
  void FrmLunch_Command3_Click();
  void FrmLunch_Check2_Click();
  void FrmLunch_Check2_LostFocus();

  int ticks_ = 0;
  bool clipOwed_ = false;   // the box has silenced the program; the user's clipboard is given back when it is left
  bool switching_ = false;  // a key ticks the box and says the level itself
};

// Copies the sample board over the one in use, ignoring any error.
void copy000();

// The start of the program: loads the start screen, and shows it unless the command line names a table that opens.
void startFromLunch(TextView commandLine);

void registerLunch();

}  // namespace zelko
