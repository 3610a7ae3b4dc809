#include "parts/report/resultfolder.h"

#include "parts/disk/filewords.h"
#include "voice/talk.h"

namespace zelko {

DiskWords resultFolderWords() {
  return {
      u"KEKKA.TXTﾉ　ﾄﾞﾗｲﾌﾞを指定してください" + markStop, u"KEKKA.TXTﾉ　ﾌｫﾙﾀﾞを指定してください" + markStop,
      [](TextView folder, TextView box) { return Text(box) + markPause + Text(folder) + u"にﾌｫﾙﾀﾞが変更されました."; }};
}

Text resultFolderLabel(TextView instruction, TextView folder) {
  return Text(instruction) + pathIn(folder, u"KEKKA.TXT") + u"に出力されます。";
}

}  // namespace zelko
