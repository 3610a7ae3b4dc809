#include "stats/frame/outputfolder.h"

#include "parts/report/resultfolder.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

const TextView kResultFolderButton = u"KEKKA.txtのﾃﾞﾚｸﾄﾘｺﾏﾝﾄﾞﾎﾞﾀﾝ";

frmOUTF::frmOUTF() : Form(kName, u"Form6") {
  File1.setPattern(u"*.txt");
  boxes_.open(appDir);
  boxes_.words = resultFolderWords();
  boxes_.onFolderChanged = [this] { showFolder(); };
  for (Control* control : {static_cast<Control*>(&Drive1), static_cast<Control*>(&File1),
                           static_cast<Control*>(&Check1), static_cast<Control*>(&Command1)})
    control->place = Place::newRow;
  Label1.place = Place::newRow;
  File1.onClick = [this] { boxes_.sayMarkedFile(); };
  Command1.onClick = [this] { hide(); };
  Command2.onClick = [this] { boxes_.makeFolderHere(); };
  Command1.isCancel = true;
  onClose = [this] { hide(); };
  Narration voice(*this);
  voice.explain([this] { return markStop + Label2.caption() + Label1.caption(); });
  boxes_.narrate(voice);
  boxes_.narrateFiles(voice);
  voice.check(Check1, u"ﾁｪｯｸﾎﾞｯｸｽ").say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ").say(Command2, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  showFolder();
}

void frmOUTF::showFolder() { Label2.setCaption(resultFolderLabel(u"結果は", Dir1.path())); }

const Text& resultFolder() { return form<frmOUTF>().Dir1.path(); }

bool resultIsNew() { return form<frmOUTF>().Check1.value() == 1; }

void chooseResultFolder() { form<frmOUTF>().showModal(); }

}  // namespace zelko
