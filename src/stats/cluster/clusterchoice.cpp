#include "stats/cluster/clusterchoice.h"

#include <array>

#include "platform/text/number.h"

namespace zelko {

Text inputKind = u"raw";

namespace {

constexpr std::array<TextView, 5> kDistances = {u"　距離マトリクス", u"ユークリッド平方距離",
                                                u"標準化ユークリッド平方距離", u"マハラノビス汎距離",
                                                u"ミンコフスキー距離"};
constexpr std::array<TextView, 5> kPictureDistances = {u"距離マトリクスデータ", u"ユークリッド平方",
                                                       u"標準化ユークリッド平方", u"マハラノビス汎距離",
                                                       u"ミンコフスキ距離"};
constexpr std::array<TextView, 7> kMethods = {u"最短距離法", u"最長距離法", u"群平均法", u"重心法",
                                              u"メジアン法", u"Ward法",     u"可変法"};
constexpr std::array<TextView, 7> kPictureMethods = {u"最短距離", u"最長距離", u"群平均", u"重心",
                                                     u"メジアン", u"Ward",     u"可変"};

std::size_t placeOf(numbers::Linkage method) { return static_cast<std::size_t>(method) - 1; }

Text constant(double value) { return u" 定数=" + trimmed(str(value)); }

}  // namespace

Text distanceName(const ClusterChoice& choice) {
  const Text name(kDistances.at(static_cast<std::size_t>(choice.distance)));
  return choice.distance == Distance::minkowski ? name + constant(choice.exponent) : name;
}

Text methodName(const ClusterChoice& choice) {
  const Text name(kMethods.at(placeOf(choice.method)));
  return choice.method == numbers::Linkage::flexible ? name + constant(choice.beta) : name;
}

Text pictureDistance(Distance distance) { return Text(kPictureDistances.at(static_cast<std::size_t>(distance))); }

Text pictureMethod(numbers::Linkage method) { return Text(kPictureMethods.at(placeOf(method))); }

}  // namespace zelko
