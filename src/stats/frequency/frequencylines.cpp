#include "stats/frequency/frequencylines.h"

#include "platform/text/format.h"
#include "platform/text/sjis.h"

namespace zelko {

namespace {

constexpr std::size_t kTextBytes = 10;

// A character that does not fit whole leaves a blank: half of it would take the bracket for its other half.
Text tenBytes(TextView text) {
  Text cut;
  std::size_t bytes = 0;
  for (const char16_t ch : text) {
    const std::size_t size = toSjis(TextView(&ch, 1)).size();
    if (bytes + size > kTextBytes) break;
    cut += ch;
    bytes += size;
  }
  return cut + Text(kTextBytes - bytes, u' ');
}

}  // namespace

Text frequencyHeading(bool inWindow) {
  return u"  ﾃﾞｰﾀ種類        頻度" + Text(inWindow ? u"　" : u"  ") + u"ﾊﾟｰｾﾝﾄ(* =2.5%)";
}

Text frequencyRow(const numbers::Frequency& row, int n) {
  const Text blanks(6, u' ');
  const Text count = right(blanks + format(row.count, u"    ####"), 10);
  const Text percent = right(blanks + format(static_cast<double>(row.count) / n, u"     ###.00%        "), 21);
  return u"[" + tenBytes(row.text) + u"]" + count + percent +
         Text(static_cast<std::size_t>(numbers::barLength(row.count, n)), u'+');
}

Text frequencyRule() { return Text(40, u'-'); }

}  // namespace zelko
