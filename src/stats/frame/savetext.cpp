#include "stats/frame/savetext.h"

#include "parts/disk/filewords.h"
#include "parts/disk/ownnames.h"
#include "parts/reading/textfile.h"
#include "platform/files/files.h"
#include "stats/frame/outputfolder.h"
#include "store/table/itemfile.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"
#include "voice/heard.h"

namespace zelko {

namespace {

constexpr TextView kTitle = u"保存";

}  // namespace

bool mayReplaceFile(const Text& path, TextView title) {
  if (isOwnName(path) || fileExists(itemFilePath(path, {}))) {
    tellFailure(spokenName(path) + u"は、表かプログラムのﾌｧｲﾙです。別の名前にしてください", title);
    return false;
  }
  return !fileExists(path) || askYesNo(spokenName(path) + u"はすでにあります。上書きしますか", title);
}

void saveTextAs(TextView text, TextView preset) {
  const Text answer = trimmed(talkAsk(u"保存するﾌｧｲﾙの名前を入力してください", kTitle, preset));
  if (answer.empty()) return;
  const Text path = answer.front() == u'/' ? answer : pathIn(resultFolder(), answer);
  if (!mayReplaceFile(path, kTitle)) return;
  if (!writeTextFile(path, text)) return tellFailure(spokenName(path) + u"に保存できません", kTitle);
  talkBehindDialog(spokenName(path) + u"に保存しました");
}

}  // namespace zelko
