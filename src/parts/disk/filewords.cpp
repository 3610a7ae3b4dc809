#include "parts/disk/filewords.h"

#include <algorithm>

namespace zelko {

namespace {

// Bytes of a name that are no text, and line ends and the like, which a file name may hold.
bool isNoCharacter(char16_t ch) { return ch < u' ' || ch == 0x7F || (ch >= 0xDC80 && ch <= 0xDCFF); }

bool isLead(char16_t ch) { return ch >= 0xD800 && ch < 0xDC00; }

}  // namespace

const TextView kNoFileHere = u"現在のﾌｫﾙﾀﾞには該当ﾌｧｲﾙはありませんﾌｫﾙﾀﾞを変更してください";

Text spokenName(TextView name) {
  Text said(name);
  for (std::size_t at = 0; at < said.size(); ++at) {
    if (isNoCharacter(said[at]) && !(at > 0 && isLead(name[at - 1]))) said[at] = u'？';
  }
  return said;
}

Text tableOfItemFile(TextView itemFile) { return Text(itemFile.substr(std::min<std::size_t>(1, itemFile.size()))); }

Text pathIn(TextView folder, TextView name) {
  Text whole(folder);
  if (!whole.ends_with(u'/')) whole += u'/';
  return whole.append(name);
}

TextView boxWord(const Control* focused) {
  if (!focused) return u"";
  switch (focused->kind()) {
    case ControlKind::driveBox:
      return u"ﾄﾞﾗｲﾌﾞﾎﾞｯｸｽ";
    case ControlKind::folderBox:
      return u"ﾌｫﾙﾀﾞﾎﾞｯｸｽ";
    case ControlKind::fileBox:
    case ControlKind::listBox:
      return u"ﾌｧｲﾙﾘｽﾄﾎﾞｯｸｽ";
    default:
      return u"";
  }
}

Text folderReport(TextView folder, const std::vector<Text>& names, TextView box) {
  Text report = spokenName(folder) + u"にﾌｫﾙﾀﾞが変更されました";
  if (names.empty()) return report + u"ﾌｫﾙﾀﾞには該当と思われるﾌｧｲﾙはありません " + Text(box);
  for (std::size_t at = 0; at < std::min(names.size(), kNamesInReport); ++at) {
    if (at > 0) report += u"､";
    report += names[at];
  }
  return report + u"等があります " + Text(box);
}

}  // namespace zelko
