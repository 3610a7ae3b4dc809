#include "editor/main/form1.h"

#include <initializer_list>

#include "editor/main/cellcommands.h"
#include "editor/main/commands.h"
#include "editor/main/dispatcher.h"
#include "editor/main/exit.h"
#include "editor/main/inputbox.h"
#include "editor/main/keyup.h"
#include "editor/main/menutable.h"
#include "editor/main/speechmenu.h"
#include "editor/main/state.h"
#include "platform/files/files.h"
#include "platform/host.h"
#include "store/table/mainform.h"
#include "voice/describe.h"
#include "voice/heard.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {
constexpr int kNumberTwips = 960;  // room for eight digits

// A button that works on the cell gives the focus back first: the sentence of the input box would name the cell that
// the cursor is about to leave, and the gate would drop what came of the command.
void runOnCell(TextView command) {
  {
    const Silence silence;
    focusInputBox();
  }
  waitPastGate();
  runCommand(command);
}
}  // namespace

Form1::Form1() : Form(kName, u"Zelko") {
  boxCharTwips = 136;
  RichTextBox1.setToolTip(u"項目名は変更できます。編集してセル移動操作をしてください");
  RichTextBox2.setToolTip(u"ﾌｧｲﾙ注記は変更できます。編集を加えてください。");
  lblSpeek.setToolTip(u"クリックすると読み上げ機能をoffします");
  Text1.readOnly = txtWIDTH.readOnly = true;
  Label1.setVisible(readOnlyMarkShown());
  wireInputBox();
  wireBoxes();
  wireButtons();
  wireLabels(*this);
  wireForm();
  labelBoxes();
  narrate();
  buildMainMenu(*this);
  showSpeechStateOn(*this);
}

void Form1::wireInputBox() {
  txtinputbox.onKeyDown = inputKeyDown;
  txtinputbox.onKeyUp = inputKeyUp;
  txtinputbox.onKeyPress = [this](CharEvent& event) { txtinputbox_KeyPress(event); };
  txtinputbox.onChange = [this] { txtinputbox_Change(); };
  txtinputbox.onGotFocus = [this] { txtinputbox_GotFocus(); };
}

void Form1::wireBoxes() {
  txtREC.onChange = [this] { txtREC_Change(); };
  txtREC.onKeyPress = [this](CharEvent& event) { txtREC_KeyPress(event); };
  txtREC.onLostFocus = [this] { txtREC_LostFocus(); };
  txtItemnum.onChange = [this] { txtItemnum_Change(); };
  txtItemnum.onKeyPress = [this](CharEvent& event) { txtItemnum_KeyPress(event); };
  txtItemnum.onLostFocus = [this] { txtItemnum_LostFocus(); };
  for (TextBox* box : {&txtREC, &txtItemnum, &txtLR}) box->onGotFocus = [box] { selectWhole(*box); };
  txtLR.onChange = [this] { txtLR_Change(); };
  txtLR.onLostFocus = [this] { txtLR_LostFocus(); };
  RichTextBox1.onChange = [this] { RichTextBox1_Change(); };
  RichTextBox1.onLostFocus = [this] { RichTextBox1_LostFocus(); };
  RichTextBox2.onChange = [this] { RichTextBox2_Change(); };
  RichTextBox2.onLostFocus = [this] { RichTextBox2_LostFocus(); };
  for (TextBox* box : std::initializer_list<TextBox*>{&RichTextBox1, &RichTextBox2, &txtLR, &Text1, &txtWIDTH})
    box->onKeyPress = [box](CharEvent& event) { otherBox_KeyPress(*box, event); };
}

void Form1::wireButtons() {
  Command1.onClick = [] { runOnCell(u"mnuCTRLU"); };
  Command2.onClick = [] { runOnCell(u"mnuCTRLD"); };
  Command3.onClick = [] { runCommand(u"mnuItemList"); };
  Command4.onClick = [] { runCommand(u"mnuSPITEM"); };
  Command5.onClick = [] { runCommand(u"mnuLIMIT"); };
}

void Form1::wireForm() {
  onKeyDown = [this](KeyEvent& event) { Form_KeyDown(event); };
  onUnload = [this] { Form_Unload(); };
  Timer1.onTimer = [this] {
    Timer1.setInterval(0);
    onCharacterWait();
  };
  onClose = leaveProgram;
}

void Form1::labelBoxes() {
  txtinputbox.labelledBy = &Label7;
  txtREC.labelledBy = &Label2;
  txtItemnum.labelledBy = &Label3;
  Text1.labelledBy = &Label12;
  txtWIDTH.labelledBy = &lblWIDTH;
  txtLR.labelledBy = &Label9;
  RichTextBox1.screenName = u"項目名";
  RichTextBox2.screenName = u"ﾌｧｲﾙ注記";
  for (Control* control : std::initializer_list<Control*>{&RichTextBox2, &Text1, &Label4, &Command1})
    control->place = Place::newRow;
  for (Control* control : std::initializer_list<Control*>{&txtItemnum, &RichTextBox1, &txtWIDTH, &txtLR, &Label13,
                                                          &Label6, &Label11, &Label8, &Label1, &Label5, &lblSpeek})
    control->place = Place::sameRow;
  for (Control* control : std::initializer_list<Control*>{&txtREC, &txtItemnum, &Text1, &txtWIDTH, &txtLR})
    control->setWidth(kNumberTwips);
}

void Form1::narrate() {
  Narration(*this)
      .explain(
          u"ZelkoのベースWindowです。データ入力テキストボックスに　データを入力して、リターンキーをたたくと、ぎょう"
          u"、項目番号で規定された セルに　テキストデータが うわがき　され、次の項目に、かきこみ項目が移動します。"
          u"また  タブ キー で　記録番号や、項目番号テキストボックスなどに　フォーカスを移動すると　現在の記録番号や　"
          u"項目番号が　読み上げられます。記録番号や項目番号を書きなおし、CRキーをたたくと。そのセルに、かきこみセルが"
          u"、移動します。")
      .box(txtREC, Label2.caption() + u"ﾃｷｽﾄﾎﾞｯｸｽ")
      .box(txtItemnum, Label3.caption() + u"ﾃｷｽﾄﾎﾞｯｸｽ")
      .box(RichTextBox1, u"項目名 ﾃｷｽﾄﾎﾞｯｸｽ。" + RichTextBox1.toolTip())
      .box(RichTextBox2, u"ﾌｧｲﾙ注記 ﾃｷｽﾄﾎﾞｯｸｽ。" + RichTextBox2.toolTip())
      .box(Text1, u"項目数ﾃｷｽﾄﾎﾞｯｸｽ")
      .box(txtWIDTH, u"項目幅ﾃｷｽﾄﾎﾞｯｸｽ")
      .box(txtLR, u"左/右詰めﾃｷｽﾄﾎﾞｯｸｽ。RかLに書きなおして、フォーカスを移動すると　配置が変更されます")
      .say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ")
      .say(Command2, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ")
      .say(Command3, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ")
      .say(Command4, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ")
      .say(Command5, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

void Form1::Form_KeyDown(KeyEvent& event) {
  if (event.is(key::letter('R'), shift::Ctrl)) {
    talkAgain();
  } else if (event.is(key::Esc, shift::None) && !txtinputbox.hasFocus()) {
    txtinputbox.setFocus();  // the way back from every other box
  } else {
    return;
  }
  event.swallow();
}

void Form1::Form_Unload() {
  closeAll();
  writeSpeechSettings();
  throw ProgramEnd{};
}

}  // namespace zelko
