#include "stats/distribution/classtable.h"

#include "platform/text/format.h"
#include "platform/text/number.h"
#include "stats/distribution/plainnumber.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kHeading = u"                階級          　　　　階級値　  人数";

Text row(const numbers::ClassEdges& edges, const numbers::ClassCounts& freq, int k) {
  const Text blanks(20, u' ');
  return right(blanks + format(edges.lower(k), u"00000.00000　～ "), 16) +
         right(blanks + format(edges.upper(k), u" 00000.00000"), 13) +
         right(blanks + format(edges.lower(k) + edges.classWidth / 2, u" 00000.00000"), 12) +
         left(format(freq[static_cast<std::size_t>(k)], u"   ###0") + Text(7, u' '), 7);
}

}  // namespace

std::vector<Text> classTable(const numbers::ClassEdges& edges, const numbers::ClassCounts& freq) {
  std::vector<Text> lines{Text(kHeading), Text(46, u'-')};
  for (int k = 1; k <= edges.classes; ++k) lines.push_back(row(edges, freq, k));
  lines.push_back(Text(46, u'-'));
  return lines;
}

Text classSentence(const numbers::ClassEdges& edges, const numbers::ClassCounts& freq, int k) {
  return u"第" + decimal(k) + u"階級" + markPause + saidNumber(edges.lower(k)) + u"から" + saidNumber(edges.upper(k)) +
         markPause + u"階級値" + saidNumber(edges.mark(k)) + markPause +
         decimal(static_cast<std::int64_t>(freq[static_cast<std::size_t>(k)])) + u"人";
}

}  // namespace zelko
