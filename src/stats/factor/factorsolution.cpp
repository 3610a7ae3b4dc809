#include "stats/factor/factorsolution.h"

#include <cmath>

#include "platform/text/format.h"
#include "platform/text/number.h"
#include "platform/text/printline.h"
#include "stats/frame/figures.h"
#include "store/table/table.h"

namespace zelko {

namespace {

constexpr TextView kWork = u"因子分析";

Text criterionLine(TextView head, double V) { return Text(head) + u" " + plainDecimal(V); }

}  // namespace

bool FactorSolution::solve() {
  run_.openWindow();
  run_.lines(basicStatistics(basics_));
  run_.tell(u"各変量の基本統計量と積率相関係数算出を終了しました");
  return chooseCommunalities() && chooseFactors() && extract() && rotate() && scores();
}

bool FactorSolution::chooseCommunalities() {
  const auto kind = askCommunalityKind();
  if (!kind) return false;
  switch (*kind) {
    case CommunalityKind::smc:
      label_ = u"SMC";
      communalities_ = numbers::smc(basics_.correlation);
      return true;
    case CommunalityKind::maxR:
      label_ = u"max.R";
      communalities_ = numbers::maxCorrelations(basics_.correlation);
      return true;
    case CommunalityKind::assigned:
      break;
  }
  label_ = u"assigned";
  const auto assigned = askCommunalities(items_);
  if (assigned) communalities_ = *assigned;
  return assigned.has_value();
}

bool FactorSolution::chooseFactors() {
  const std::vector<double> ones(items_.size(), 1.0);
  const std::vector<double> full = numbers::eigenvaluesWith(basics_.correlation, ones);
  const std::vector<double> reduced = numbers::eigenvaluesWith(basics_.correlation, communalities_);
  run_.lines(eigenvalueTable(full, u"1.0"));
  run_.lines(eigenvalueTable(reduced, label_));
  const auto factors = askFactors(full, reduced, label_);
  if (!factors) return false;
  factors_ = *factors;
  run_.tell(u"因子数は" + decimal(factors_));
  return true;
}

// --- Loadings ------------------------------------------------------------------------------------------------

bool FactorSolution::extract() {
  const auto method = askLoadingMethod();
  if (!method) return false;
  run_.lines({u" <<<  Estimation of factor loadings  >>>        ", u"( Diagonal = " + label_ + u" )", {}});
  numbers::FactorExtraction extraction(basics_.correlation, communalities_, factors_);
  run_.compute(kWork, method->maximum);
  bool settled = false;
  while (!settled && extraction.cycles() < method->maximum) {
    if (!run_.step(extraction.cycles())) return false;
    settled = extraction.cycle(method->eps);
    if (settled || !method->reportsCycles) continue;
    run_.lines({PrintLine().text(u" Cycle   No.").number(extraction.cycles()).line()});
    run_.lines(loadingTable(extraction.loadings(), extraction.communalities()));
  }
  run_.rest();
  loadings_ = extraction.loadings();
  communalities_ = extraction.communalities();
  settled_ = settled || !method->iterated;
  reportExtraction(*method, extraction.cycles());
  return true;
}

void FactorSolution::reportExtraction(const LoadingMethod& method, int cycles) {
  if (method.iterated) {
    run_.lines({u"Iterated estimates of factor loading",
                PrintLine().text(u"   ( ").number(cycles).text(u" - iterations )").line(),
                format(method.eps, u"  eps                  = 0.00000")});
  } else {
    run_.lines({u"Non-iterated estimates of factor loadings"});
  }
  run_.lines(loadingTable(loadings_, communalities_));
  const numbers::Matrix calculated = numbers::reproduced(loadings_, communalities_);
  run_.lines(triangle(u"Calculated correlation matrix   AA'+D", calculated));
  run_.lines(triangle(u"Residual matrix", numbers::residual(basics_.correlation, calculated)));
}

// --- Rotation and scores -------------------------------------------------------------------------------------

bool FactorSolution::rotate() {
  run_.lines({u" <<<  Varimax rotation  >>>", {}});
  const auto method = askRotation();
  if (!method) return false;
  numbers::Varimax varimax(loadings_, communalities_);
  run_.lines({criterionLine(u"Initial Varimax criterion      V=", varimax.criterion())});
  run_.compute(kWork, 0);
  for (bool settled = false; !settled;) {
    if (!run_.step(varimax.cycles())) return false;
    settled = varimax.cycle(method->eps);
    if (!method->reportsCycles) continue;
    run_.lines({criterionLine(PrintLine().text(u"Cycle  No.").number(varimax.cycles()).line() + u"          V=",
                              varimax.criterion())});
  }
  run_.rest();
  loadings_ = varimax.loadings();
  run_.lines({criterionLine(u"Final Varimax criterion              V=", varimax.criterion()), {}});
  run_.lines(loadingTable(loadings_, communalities_));
  return true;
}

bool FactorSolution::scores() {
  const auto wanted = askScores();
  if (!wanted) return false;
  if (!*wanted) return true;
  scoresFrom_ = run_.report().written();
  run_.lines({u" <<<  Estimation of factor scores  >>>", {}});
  const numbers::Matrix weights = numbers::scoreWeights(basics_.correlation, loadings_);
  run_.lines(scoreTable(numbers::factorScores(data_, basics_, weights)));
  return true;
}

// --- Words ---------------------------------------------------------------------------------------------------

Text FactorSolution::spokenFigures() const {
  Text said = u"因子数わ" + decimal(factors_);
  if (!settled_) said += u"。反復の最大数に達し、収束していません";
  for (int k = 0; k < factors_; ++k) {
    double squares = 0;
    int highest = 0;
    for (int i = 0; i < loadings_.rows; ++i) {
      squares += loadings_(i, k) * loadings_(i, k);
      if (std::abs(loadings_(i, k)) > std::abs(loadings_(highest, k))) highest = i;
    }
    const auto item = static_cast<std::size_t>(items_[static_cast<std::size_t>(highest)]);
    said += u"。因子" + decimal(k + 1) + u"、寄与率" + format(100 * squares / loadings_.rows, u"0.0") +
            u"パーセント、負荷が最も大きい項目わ" + trimmed(itemName[item]) + u"、" +
            figure(loadings_(highest, k), 0, 2).substr(1);
  }
  return said;
}

CellNames FactorSolution::cellNames() const {
  std::vector<Text> names;
  for (const std::int16_t item : items_) names.push_back(trimmed(itemName[static_cast<std::size_t>(item)]));
  const std::size_t loadingsEnd = scoresFrom_ > 0 ? scoresFrom_ : Text::npos;
  return [names, loadingsEnd](NamedPart part, TextView name, std::size_t position) -> Text {
    if (part == NamedPart::whole) return {};
    const bool isVariable = name.starts_with(u"X(");
    if (!isVariable && (name.size() != 4 || position >= loadingsEnd)) return {};
    const double number = val(isVariable ? name.substr(2) : name);
    return number >= 1 && number <= static_cast<double>(names.size()) ? names[static_cast<std::size_t>(number) - 1]
                                                                      : Text();
  };
}

}  // namespace zelko
