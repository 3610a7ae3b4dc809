#include "stats/factor/factorquestions.h"

#include <algorithm>
#include <limits>

#include "parts/ask/ask.h"
#include "platform/text/format.h"
#include "platform/text/number.h"
#include "store/table/table.h"
#include "voice/dialogs.h"

namespace zelko {

namespace {

constexpr TextView kBreak = u"\r";
constexpr TextView kLoadings = u"因子負荷の評価", kRotation = u"バリマックス回転";
constexpr std::int32_t kMostCycles = 32767;
constexpr double kLargest = 1e300;
constexpr std::size_t kHeardEigenvalues = 10;
constexpr std::int64_t kUsualFactors = 3;

Text joined(std::initializer_list<TextView> lines) {
  Text text;
  for (const TextView line : lines) text += (text.empty() ? Text() : Text(kBreak)) + Text(line);
  return text;
}

std::optional<bool> yesOrNo(TextView question, TextView title) {
  const bool yes = askYesNo(question, title);
  return msgAnswer == kCancel ? std::nullopt : std::optional(yes);
}

// The largest ones: the others say nothing about the number of factors.
Text heard(TextView name, std::span<const double> eigenvalues) {
  Text text(name);
  for (std::size_t k = 0; k < std::min(eigenvalues.size(), kHeardEigenvalues); ++k)
    text += u"､" + format(eigenvalues[k], u"0.00");
  return text;
}

}  // namespace

std::optional<CommunalityKind> askCommunalityKind() {
  const auto kind = askWhole({.prompt = joined({u"共通性を評価する方法を入力して下さい。", u" (1) 相関値の二乗 ( SMC )",
                                                u" (2) 最大相関値 ", u" (3) マニュアル入力"}),
                              .title = u"共通性の推定",
                              .preset = u"1"},
                             1, 3);
  return kind ? std::optional(static_cast<CommunalityKind>(*kind)) : std::nullopt;
}

std::optional<std::vector<double>> askCommunalities(const std::vector<std::int16_t>& items) {
  std::vector<double> h;
  for (const std::int16_t item : items) {
    const Text variable =
        format(static_cast<double>(h.size() + 1), u"X(00)") + u" " + trimmed(itemName[static_cast<std::size_t>(item)]);
    const auto value =
        askNumber({.prompt = u"共通性初期値を入力して下さい " + variable, .title = u"共通性の推定"}, 0, 1);
    if (!value) return std::nullopt;
    h.push_back(*value);
  }
  return h;
}

std::optional<std::int32_t> askFactors(std::span<const double> full, std::span<const double> reduced, TextView label) {
  // A factor beyond them has no loadings: its eigenvalue has no root.
  const auto most = static_cast<std::int64_t>(std::ranges::count_if(reduced, [](double value) { return value >= 0; }));
  Text prompt = joined({u"上記相関マトリクスの固有値を参考に、因子数を指定して下さい。", u"因子数は？",
                        heard(u"固有値、対角1.0", full), heard(u"対角" + Text(label), reduced)});
  if (most < kUsualFactors) prompt += Text(kBreak) + u"負でない固有値わ" + decimal(most) + u"個、因子数わそこまでです";
  return askWhole({.prompt = prompt, .title = u"因子数の決定", .preset = decimal(std::min(most, kUsualFactors))}, 1,
                  static_cast<std::int32_t>(full.size()));
}

std::optional<LoadingMethod> askLoadingMethod() {
  const auto kind =
      askWhole({.prompt = joined({u"因子負荷を評価する方法を入力してください", u" (1)非収束解(non-iterated solution)",
                                  u" (2) 収束解(iterated solution)"}),
                .title = Text(kLoadings),
                .preset = u"1"},
               1, 2);
  if (!kind) return std::nullopt;
  LoadingMethod method{.iterated = *kind == 2};
  if (!method.iterated) return method;
  const auto maximum =
      askWhole({.prompt = u"最大反復数(Maximum iteration number)は ", .title = Text(kLoadings)}, 1, kMostCycles);
  if (!maximum) return std::nullopt;
  const auto eps =
      askNumber({.prompt = u"収束判定値は : eps= ", .title = Text(kLoadings), .wrong = u"0以上の数字を入力して下さい"},
                0, kLargest);
  if (!eps) return std::nullopt;
  const auto reports = yesOrNo(u"収束プロセスの経過をレポートしますか", kLoadings);
  if (!reports) return std::nullopt;
  return LoadingMethod{true, *maximum, *eps, *reports};
}

std::optional<RotationMethod> askRotation() {
  const auto reports = yesOrNo(u"バリマックス回転における収束プロセスをレポートしますか", kRotation);
  if (!reports) return std::nullopt;
  const auto eps = askNumber(
      {.prompt = u"収束判定値は: esp= ", .title = Text(kRotation), .wrong = u"0より大きい数字を入力して下さい"},
      std::numeric_limits<double>::min(), kLargest);
  if (!eps) return std::nullopt;
  return RotationMethod{*reports, *eps};
}

std::optional<bool> askScores() { return yesOrNo(u"因子得点をレポートしますか Y/N", u"因子得点"); }

}  // namespace zelko
