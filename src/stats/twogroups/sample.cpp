#include "stats/twogroups/sample.h"

#include "editor/clip/clipfile.h"
#include "parts/ask/checkednumber.h"
#include "parts/ask/typed.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/table/notice.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kData = 1, kRank = 2;
constexpr int kRowsAtStart = 30, kRowsMore = 100, kMostRows = 5000;

CellRules rules() {
  CellRules rules;
  rules.mostRows = kMostRows;
  rules.marks = true;
  return rules;
}

}  // namespace

Sample::Sample(Grid& grid, TextBox& box, TextView group)
    : grid_(grid), box_(box), group_(group), editor_(grid, box, nullptr, rules()) {
  grid_.setCols(kRank + 1);
  grid_.setRows(kRowsAtStart + 1);
  grid_.setCellText(0, 0, group_);
  grid_.setCellText(0, kData, u"ﾃﾞｰﾀ");
  grid_.setCellText(0, kRank, u"順位");
  for (int row = 1; row <= kRowsAtStart; ++row) grid_.setCellText(row, 0, decimal(row));
  editor_.on.sentence = [this](int row, int) {
    const Text rank = grid_.cell(row, kRank);
    return group_ + u"の" + decimal(row) + u"番目" + (rank.empty() ? Text() : u"順位" + rank) + u"ﾃｷｽﾄﾎﾞｯｸｽ";
  };
  editor_.on.fault = [](int, int, const Text& typed) -> std::optional<CellFault> {
    if (typedCode(typed).empty() || checkedNumber(typed)) return std::nullopt;
    return CellFault{u"数値でわありません", u"数値を入力してください", u"注意"};
  };
  editor_.on.stored = [](int, int, const Text& typed) { return typedCode(typed); };
  editor_.on.onStored = [this](int, int) {
    if (onChanged) onChanged();
  };
  editor_.on.onAdded = [this](int row) { grid_.setCellText(row, 0, decimal(row)); };
}

void Sample::narrate(Narration& voice) {
  voice.box(box_, [this] { return group_ + u"の" + decimal(editor_.row()) + u"番目のﾃﾞｰﾀﾃｷｽﾄﾎﾞｯｸｽ"; });
  voice.say(grid_, [this] { return group_ + u"のﾃﾞｰﾀと順位ｸﾞﾘｯﾄﾞ"; });
}

int Sample::lastFilledRow() const {
  int row = editor_.lastRow();
  while (row > 0 && typedCode(editor_.textAt(row, kData)).empty()) --row;
  return row;
}

std::optional<std::vector<double>> Sample::values() {
  if (!editor_.store()) return std::nullopt;
  std::vector<double> values;
  for (int row = 1; row <= lastFilledRow(); ++row) {
    const Text cell = editor_.textAt(row, kData);
    if (typedCode(cell).empty()) continue;
    const auto value = checkedNumber(cell);
    if (!value) {
      tellFailure(group_ + u"の" + decimal(row) + u"番目が数値でわありません", u"注意");
      return std::nullopt;
    }
    values.push_back(*value);
  }
  return values;
}

void Sample::showRanks(std::span<const double> ranks) {
  std::size_t next = 0;
  editor_.reshape([&] {
    for (int row = 1; row <= editor_.lastRow(); ++row) {
      const bool filled = next < ranks.size() && !typedCode(grid_.cell(row, kData)).empty();
      grid_.setCellText(row, kRank, filled ? trimmed(str(ranks[next++])) : Text());
    }
  });
}

// Cell by cell downwards, a record of the clip behind the other.
void Sample::paste() {
  ClipReader clip;
  if (!clip.open() || !clip.header()) {
    return tellFailure(u"張り付けるべきｸﾘｯﾌﾟﾌｧｲﾙがありません", u"クリップファイルなし");
  }
  int row = editor_.row(), pasted = 0;
  const auto cells = std::int64_t{clip.records()} * clip.items();
  editor_.reshape([&] {
    Text cell;
    for (std::int64_t i = 0; i < cells && row <= kMostRows && clip.next(cell); ++i, ++row) {
      if (row > editor_.lastRow()) {
        grid_.setRows(row + 1);
        grid_.setCellText(row, 0, decimal(row));
      }
      grid_.setCellText(row, kData, typedCode(cell));
      ++pasted;
    }
  });
  if (onChanged) onChanged();
  talkBehindDialog(group_ + u"に" + decimal(pasted) + u"件貼り付けました" +
                   (pasted < cells ? Text(u"。入りきらないﾃﾞｰﾀが残りました") : Text()));
}

void Sample::clear() {
  if (lastFilledRow() > 0 && !askYesNo(group_ + u"のﾃﾞｰﾀをすべて消去します", u"消去")) return;
  editor_.reshape([&] {
    for (int row = 1; row < grid_.rows(); ++row)
      for (const int col : {kData, kRank}) grid_.setCellText(row, col, {});
  });
  editor_.enter(1, kData);
  if (onChanged) onChanged();
  talkBehindDialog(group_ + u"を消去しました");
}

void Sample::extend() {
  const int before = editor_.lastRow(), after = std::min(before + kRowsMore, kMostRows);
  if (after == before) return host().beep();
  editor_.reshape([&] {
    grid_.setRows(after + 1);
    for (int row = before + 1; row <= after; ++row) grid_.setCellText(row, 0, decimal(row));
  });
  talkBehindDialog(group_ + u"わ" + decimal(after) + u"行になりました");
}

}  // namespace zelko
