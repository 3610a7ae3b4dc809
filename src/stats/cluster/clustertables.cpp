#include "stats/cluster/clustertables.h"

#include <algorithm>

#include "platform/text/format.h"
#include "platform/text/number.h"
#include "platform/text/printline.h"

namespace zelko {

namespace {

constexpr int kColumnsOfBlock = 10;
constexpr int kLinesOfPage = 41;
constexpr TextView kRetired = u"   *    ";

// Columns first to last of the rows from there on.
void addBlock(std::vector<Text>& lines, const numbers::Clustering& clustering, int first, int last) {
  Text head = u" n         ";
  for (int k = first; k <= last; ++k) head += format(k, u"  O(00) ");
  const Text rule(head.size(), u'-');
  lines.push_back(head);
  lines.push_back(rule);
  for (int i = first; i <= clustering.objects(); ++i) {
    Text row = format(i, u"   O(00) ");
    for (int j = first; j <= std::min(i, last); ++j) {
      const bool isRetired = clustering.size(i) == 0 || clustering.size(j) == 0;
      row += isRetired ? Text(kRetired) : format(clustering.D()(i - 1, j - 1), u"000.000 ");
    }
    lines.push_back(row);
  }
  lines.push_back(rule);
}

}  // namespace

std::vector<Text> outResult(const numbers::Clustering& clustering) {
  const auto step = static_cast<std::int64_t>(clustering.merges().size());
  const numbers::Merge& merge = clustering.merges().back();
  const Text stars(20, u'*');
  PrintLine minimum;
  minimum.text(u" Minimum dissilarity  O(").number(merge.i).text(u")-O(").number(merge.j).text(u")=");
  minimum.number(merge.mergeLevel);
  std::vector<Text> lines{stars, u" Step" + str(step), stars, {}, minimum.line(), {}};
  for (int first = 1; first <= clustering.objects(); first += kColumnsOfBlock)
    addBlock(lines, clustering, first, std::min(first + kColumnsOfBlock - 1, clustering.objects()));
  lines.push_back({});
  return lines;
}

std::vector<Text> outSry(const std::vector<numbers::Merge>& merges) {
  std::vector<Text> lines{u"Summary : process of merging of clusters"};
  int step = 0;
  for (const numbers::Merge& merge : merges) {
    lines.push_back(format(++step, u"  00") + format(merge.i, u"  ：  O(00) ") + format(merge.j, u"- O(00) ") +
                    format(merge.mergeLevel, u"0000.0000"));
    if (step % kLinesOfPage == 0) lines.push_back(u"\f");
  }
  return lines;
}

}  // namespace zelko
