#include "editor/main/speechmenu.h"

#include <algorithm>

#include "editor/main/commands.h"
#include "editor/main/form1.h"
#include "editor/main/inputbox.h"
#include "parts/ask/typed.h"
#include "parts/cells.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/table/cursor.h"
#include "voice/agent.h"
#include "voice/describe.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kWalkWait = 1500;  // milliseconds
constexpr double kShortestGap = 0.1, kLongestGap = 1;

int speedStep = 0;

constexpr const char16_t* kSpeedSentences[] = {
    u"＜速さ０＞速度調整0", u"＜速さ１＞速度調整1", u"＜速さ２＞速度調整2", u"＜速さ３＞速度調整3",
    u"＜速さ４＞速度調整4", u"＜速さ５＞速度調整5", u"＜速さ６＞速度調整6", u"＜速さ７＞速度調整7",
    u"＜速さ８＞速度調整8", u"＜速さ９＞速度調整9",
};

void setLevel(std::int16_t level, TextView sentence) {
  talkMode = level;
  showSpeechState();
  if (agentOn == 1) form<frmAGENT>().showWithoutFocus();
  talkB(sentence);
}

void agentMenu() {
  if (agentOn != 1) {
    agentOn = 1;
    mainForm().menu().setChecked(u"mnuAGENT", true);
    form<frmAGENT>().showWithoutFocus();
    if (talkMode == 0) speakDataOnly();
    return;
  }
  unload<frmAGENT>();
  agentOn = 0;
  mainForm().menu().setChecked(u"mnuAGENT", false);
  if (talkMode != 0) speakNothing();
}

void askInhibitTime() {
  const Text answer = talkAsk(
      u"読み上げ禁止時間を秒単位で入力してください。読み上げソフトにエラーが出る場合、読み上げ禁止時間を長く設定して試"
      u"してください。",
      u"読み上げ禁止時間の設定", trimmed(str(talkGap)));
  if (answer.empty()) {
    host().beep();
    return;
  }
  talkGap = std::clamp(typedVal(answer).value_or(kLongestGap), kShortestGap, kLongestGap);
}

void readSpItemToo() {
  spItemIsRead = !spItemIsRead;
  Menu& menu = mainForm().menu();
  menu.setChecked(u"mnuJY", spItemIsRead);
  talkGated(Text(spItemIsRead ? u"チェック" : u"ノーチェック") + markPause +
            menu.find(u"mnuJY")->captionWithoutMarks());
}

void describeWalkToo() {
  describesWalk = !describesWalk;
  Menu& menu = mainForm().menu();
  menu.setChecked(u"mnuKANJI", describesWalk);
  talkGated(Text(describesWalk ? u"チェック" : u"ノーチェック") + markPause +
            menu.find(u"mnuKANJI")->captionWithoutMarks());
}

// A host begins a wait anew only where its length is another one.
void waitForWalk(bool begins) {
  static int length = kWalkWait;
  length = length == kWalkWait ? kWalkWait + 1 : kWalkWait;
  mainForm().Timer1.setInterval(begins ? length : 0);
}

}  // namespace

void speakDataOnly() { setLevel(1, u"データのみ読み上げ"); }

void speakWithPlace() { setLevel(2, u"行、項目番号付き読み上げ"); }

void speakNothing() {
  if (talkMode != 0) {
    talkB(u"読み上げｵﾌ");
    waitSec(1.8);
  }
  talkMode = 0;
  showSpeechState();
  if (agentOn == 1) unload<frmAGENT>();
}

void switchSpeech() {
  if (mainForm().lblSpeek.visible())
    speakNothing();
  else
    speakWithPlace();
}

void showSpeechState() {
  if (Form1* main = loadedForm<Form1>()) showSpeechStateOn(*main);
}

void showSpeechStateOn(Form1& main) {
  main.menu().setChecked(u"mnuAGENT", agentOn == 1);
  main.menu().setChecked(u"mnuDTKN", talkMode == 1);
  main.menu().setChecked(u"mnuDTKEX", talkMode > 1);
  main.menu().setChecked(u"mnuDTKOFF", talkMode == 0);
  main.menu().setEnabled(u"mnuJY", talkMode != 0);
  main.lblSpeek.setVisible(talkMode != 0);
}

void stepSpeed() {
  speedStep = (speedStep + 1) % 10;
  talkCtl(kSpeedSentences[speedStep]);
}

void registerSpeechMenu() {
  registerCommand(u"mnuDTKN", speakDataOnly);
  registerCommand(u"mnuDTKEX", speakWithPlace);
  registerCommand(u"mnuDTKOFF", speakNothing);
  registerCommand(u"mnuJY", readSpItemToo);
  registerCommand(u"mnuVC", [] { talkB(stateReport(inputText())); });
  registerCommand(u"mnuAGENT", agentMenu);
  registerCommand(u"mnuINH", askInhibitTime);
  registerCommand(u"mnuKANJI", describeWalkToo);
  characterHooks.wait = waitForWalk;
}

}  // namespace zelko
