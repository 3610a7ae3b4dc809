#include "stats/crosstable/simulation.h"

#include <cmath>
#include <limits>

#include "parts/ask/typed.h"
#include "parts/grid/cellfault.h"
#include "platform/host.h"
#include "platform/text/format.h"
#include "platform/text/number.h"
#include "voice/dialogs.h"
#include "voice/progress.h"

namespace zelko {

SimulationEnd simulate(std::int32_t trials, const std::function<bool(const numbers::RandomBits&)>& once) {
  const numbers::RandomBits bits = [] { return host().randomBits(); };
  {
    LateProgress progress(u"ﾓﾝﾃｶﾙﾛｼﾐｭﾚｰｼｮﾝ", trials);
    bool goesOn = true;
    for (std::int32_t i = 0; i < trials && goesOn; ++i) {
      if (!progress.step(i)) {
        progress.close();
        return SimulationEnd::stopped;
      }
      goesOn = once(bits);
    }
    progress.close();
    if (goesOn) return SimulationEnd::done;
  }
  host().beep();
  showOK(u"シミレーション中にオーバフローなどのエラーが出ました", u"エラー");
  return SimulationEnd::failed;
}

std::optional<std::int32_t> trialsFrom(TextBox& box) {
  const auto trials = typedWhole(box.content(), 1, std::numeric_limits<std::int32_t>::max());
  if (trials) return trials;
  host().beep();
  tellCellFault({{}, u"回数を指定してください", u"注意"}, box);
  return std::nullopt;
}

Text trialsSentence(SimulationEnd end, int done, int hits) {
  Text said = u"シミュレーション" + decimal(done) + u"回中" + decimal(hits) + u"回";
  if (done > 0) said += u"、" + format(100.0 * hits / done, u"0.0") + u"パーセント";
  return end == SimulationEnd::done ? said + u"。" : u"途中で終わりました。" + said + u"。";
}

Text spokenP(double p) { return format(p, p != 0 && std::abs(p) < 0.001 ? u"0.000E+0" : u"0.0000"); }

Text exactSentence(double p) { return u"正確な確率わ" + spokenP(p) + u"。"; }

}  // namespace zelko
