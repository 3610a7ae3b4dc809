#include "stats/factor/factortables.h"

#include "platform/text/format.h"
#include "platform/text/printline.h"
#include "platform/text/sjis.h"
#include "stats/frame/figures.h"

namespace zelko {

namespace {

constexpr std::size_t kDecimals = 3;
constexpr std::size_t kStatisticWidth = 10, kCorrelationWidth = 9, kLoadingWidth = 8;
constexpr std::size_t kNameWidth = 6;
constexpr TextView kNumber = u"   No.";

Text padded(Text text, std::size_t columns) {
  const std::size_t used = sjisLength(text);
  return used < columns ? text + Text(columns - used, u' ') : text;
}

Text rule(TextView head) { return Text(sjisLength(head), u'-'); }

Text headsOf(int columns, TextView pattern) {
  Text heads;
  for (int j = 1; j <= columns; ++j) heads += format(j, pattern);
  return heads;
}

Text correlationHeads(int columns) { return Text(kNumber) + headsOf(columns, u"    X(00)"); }

Text rowName(int i) { return padded(format(i + 1, u"X(00)"), kNameWidth); }

// One row of a lower triangle.
Text triangleRow(const numbers::Matrix& m, int i) {
  Text row;
  for (int j = 0; j <= i; ++j) row += figure(m(i, j), kCorrelationWidth, kDecimals);
  return row;
}

Text statisticsOf(const numbers::Spread& item, int i) {
  Text line = padded(PrintLine().text(u"X(").number(i + 1).text(u")").line(), kNameWidth);
  for (const double value : {item.mean, item.variance(), item.u(), item.min, item.max})
    line += figure(value, kStatisticWidth, kDecimals);
  return line;
}

}  // namespace

Lines basicStatistics(const numbers::Covariance& basics) {
  const Text heads = u"  変数　　　平均　　　分散　　　ＳＤ　　　最小　　　最大";
  const int p = static_cast<int>(basics.items.size());
  Lines lines{u" BASIC STATISTICS ", PrintLine().text(u"ケース（被験者）数＝").number(basics.items[0].n).line(), heads,
              rule(heads)};
  for (int i = 0; i < p; ++i) lines.push_back(statisticsOf(basics.items[static_cast<std::size_t>(i)], i));
  lines.push_back({});
  lines.push_back(u"  相関係数(上段)　と　共分散(下段)　マトリクス");
  lines.push_back(correlationHeads(p));
  for (int i = 0; i < p; ++i) {
    lines.push_back(rowName(i) + triangleRow(basics.correlation, i));
    lines.push_back(Text(kNameWidth, u' ') + triangleRow(basics.covariance, i));
  }
  lines.push_back(u"[NOTE:分散．共分散はｎ－１で除した]");
  lines.push_back({});
  return lines;
}

Lines eigenvalueTable(std::span<const double> values, TextView label) {
  Lines lines{u"相関マトリクスの固有値　　（ Diagonal = " + Text(label) + u" )"};
  int number = 0;
  for (const double value : values)
    lines.push_back(format(++number, u"   (00)") + figure(value, kStatisticWidth, kDecimals));
  lines.push_back({});
  return lines;
}

Lines loadingTable(const numbers::Matrix& loadings, std::span<const double> communalities) {
  const Text heads = Text(10, u' ') + headsOf(loadings.columns, u"  f(00) ") + u" :  communalities";
  Lines lines{u"   factor loadings", heads, rule(heads)};
  for (int i = 0; i < loadings.rows; ++i) {
    Text row = format(i + 1, u"  0000  I ");
    for (const double loading : loadings.row(i)) row += figure(loading, kLoadingWidth, kDecimals);
    lines.push_back(row + u" : " + figure(communalities[static_cast<std::size_t>(i)], kLoadingWidth, kDecimals));
  }
  lines.push_back({});
  return lines;
}

Lines triangle(TextView name, const numbers::Matrix& symmetric) {
  Lines lines{Text(name), correlationHeads(symmetric.columns)};
  for (int i = 0; i < symmetric.rows; ++i) lines.push_back(rowName(i) + triangleRow(symmetric, i));
  lines.push_back({});
  return lines;
}

Lines scoreTable(const numbers::Matrix& scores) {
  const Text heads = Text(10, u' ') + headsOf(scores.columns, u"  f(00) ");
  Lines lines{heads, rule(heads)};
  for (int i = 0; i < scores.rows; ++i) {
    Text row = format(i + 1, u"  0000  I ");
    for (const double score : scores.row(i)) row += figure(score, kLoadingWidth, kDecimals);
    lines.push_back(row);
  }
  lines.push_back(rule(heads));
  return lines;
}

}  // namespace zelko
