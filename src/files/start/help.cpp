#include "files/start/help.h"

#include "editor/main/commands.h"
#include "parts/reading/helpform.h"
#include "parts/reading/textfile.h"
#include "platform/files/files.h"
#include "store/table/notice.h"
#include "voice/talk.h"

namespace zelko {

namespace {

struct HelpEntry {
  TextView menu, file;
};

constexpr HelpEntry kEntries[] = {
    {u"menuGENERAL", u"Zelkoについて.txt"},
    {u"mnuWRITE", u"ﾃｷｽﾄﾃﾞｰﾀの記入のしかた.txt"},
    {u"mnuGUIDE", u"音声案内について.txt"},
    {u"mnuREDME", u"readme.txt"},
    {u"mnuSETU", u"コードファイルを利用した置換機能について.txt"},
    {u"mnuOSETU", u"並べかえについて.txt"},
    {u"mnuFSETU", u"検索抽出について.txt"},
    {u"mnuCSETU", u"CSVとブロック抽出について.txt"},
};

}  // namespace

void showHelpFile(TextView name) {
  const Text path = appDir + Text(name);
  const auto text = readTextFile(findIgnoringCase(path).value_or(path));
  if (!text) return tellFailure(Text(name) + u"がないか、読めません。", u"ﾍﾙﾌﾟ");
  showReading({Text(name.substr(0, name.rfind(u'.'))), *text});
}

void registerHelp() {
  registerForm<frmHelp>();
  for (const HelpEntry& entry : kEntries) registerCommand(entry.menu, [&entry] { showHelpFile(entry.file); });
}

}  // namespace zelko
