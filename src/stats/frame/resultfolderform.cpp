#include "stats/frame/resultfolderform.h"

#include "parts/report/resultfolder.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

frmKEKF::frmKEKF() : Form(kName, u"KEKKAフォルダの指定") {
  File1.setPattern(u"?*.txt");
  boxes_.open(appDir);
  boxes_.words = resultFolderWords();
  File1.place = Command1.place = Place::newRow;
  File1.onClick = [this] { boxes_.sayMarkedFile(); };
  Command1.onClick = [this] {
    chosen = Dir1.path();
    screen().unload(*this);
  };
  Command2.onClick = [this] { screen().unload(*this); };
  Command3.onClick = [this] { boxes_.makeFolderHere(); };
  Command1.isDefault = true;
  Command2.isCancel = true;
  Narration voice(*this);
  voice.explain(u"。KEKKA.TXTのあるﾌｫﾙﾀﾞを選び、指定ボタンを押してください。");
  boxes_.narrate(voice);
  boxes_.narrateFiles(voice);
  for (Button* button : {&Command1, &Command2, &Command3}) voice.say(*button, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
}

std::optional<Text> askResultFolder() {
  unload<frmKEKF>();
  // Held here: the form is gone when the loop ends.
  std::optional<Text> chosen;
  frmKEKF& dialog = form<frmKEKF>();
  dialog.onUnload = [&] { chosen = dialog.chosen; };
  dialog.showModal();
  return chosen;
}

}  // namespace zelko
