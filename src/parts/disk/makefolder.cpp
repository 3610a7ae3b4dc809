#include "parts/disk/makefolder.h"

#include "parts/disk/filewords.h"
#include "parts/disk/ownnames.h"
#include "platform/files/files.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"

namespace zelko {

namespace {

constexpr TextView kTitle = u"フォルダの作成";

Text refusal(FileError error, TextView name) {
  if (error == FileError::alreadyExists) return Text(name) + u"という名前のファイルかフォルダが既にあります。";
  return Text(name) + u"というフォルダは作成できません。";
}

}  // namespace

bool makeFolder(TextView parent) {
  const Text name = trimmed(talkAsk(u"フォルダ名を入力してください", kTitle, {}));
  if (name.empty()) return false;
  if (contains(name, u"/")) {
    tellFailure(u"フォルダ名に／は使えません。", kTitle);
    return false;
  }
  if (isOwnName(name)) {
    tellFailure(name + u"はこのプログラムが使う名前です。別の名前にして下さい", kTitle);
    return false;
  }
  const FileError error = makeDirectory(pathIn(parent, name));
  if (error != FileError::none) {
    tellFailure(refusal(error, name), kTitle);
    return false;
  }
  talkBehindDialog(u"フォルダ作成作成されました" + name);
  return true;
}

}  // namespace zelko
