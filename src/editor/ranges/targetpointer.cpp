#include "editor/ranges/targetpointer.h"

#include <algorithm>
#include <optional>

#include "editor/main/state.h"
#include "editor/moves/jumps.h"
#include "editor/ranges/range.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "voice/dialogs.h"

namespace zelko {

namespace {

enum class Axis { records, items };

struct Wish {
  Axis axis;
  std::int64_t place;
};

bool pointsAtData(Pointing what) { return what == Pointing::cellsToCopy || what == Pointing::cellsToMove; }
std::int32_t placeOn(Axis axis) { return axis == Axis::records ? curRec : curItem; }

Text askedPlace(TextView question, TextView title) { return trimmed(talkAsk(question, title, {})); }

std::optional<Wish> askItemPlace() {
  const Text answer = askedPlace(
      u"第何項目に飛びますか？（なお、＋－付きで数値を指定すると、今の項目からの相対指定になります", u"指定項目へ移動");
  if (answer.empty()) return {};
  return Wish{Axis::items, targetOf(answer, curItem, 0, itemCount)};
}

std::optional<Wish> askRecordPlace() {
  const Text answer = askedPlace(
      u"第何記録に飛びますか？（なお、＋－付きで数値を指定すると、今の記録からの相対指定になります", u"指定記録へ移動");
  if (answer.empty()) return {};
  return Wish{Axis::records, targetOf(answer, curRec, 1, recCount())};
}

bool isOnAxis(Pointing what, Axis axis) {
  return pointsAtData(what) || (axis == Axis::records) == (what == Pointing::records);
}

// Where the arrow leads, with Ctrl to the end; empty for another key.
std::optional<Wish> arrowWish(const KeyEvent& key) {
  const bool toEnd = key.mask == shift::Ctrl;
  if (!toEnd && key.mask != shift::None) return {};
  switch (key.code) {
    case key::Left:
      return Wish{Axis::items, toEnd ? std::min<int>(1, itemCount) : curItem - 1};
    case key::Right:
      return Wish{Axis::items, toEnd ? itemCount : curItem + 1};
    case key::Up:
      return Wish{Axis::records, toEnd ? 1 : std::int64_t{curRec} - 1};
    case key::Down:
      return Wish{Axis::records, toEnd ? recCount() : std::int64_t{curRec} + 1};
    default:
      return {};
  }
}

// The nearest place that the pointer may take on the way to the wished one; empty where there is none. The place right
// behind a moved block is the block's own, and nothing is moved behind the last one.
std::optional<std::int32_t> allowedPlace(Pointing what, const Wish& wish) {
  const bool records = wish.axis == Axis::records;
  const std::int64_t lowest = records ? 1 : 0;
  const std::int64_t highest = records ? std::int64_t{recCount()} + (pointsAtData(what) ? 1 : 0) : itemCount;
  std::int64_t place = wish.place;
  if (!pointsAtData(what)) {
    const RangeBlock block = heldBlock();
    const std::int64_t first = records ? block.rec1 : block.item1, last = records ? block.rec2 : block.item2;
    if (place >= first && place <= last + 1) place = place > placeOn(wish.axis) ? last + 2 : first - 1;
  }
  if (place < lowest || place > highest) return {};
  return static_cast<std::int32_t>(place);
}

struct AxisWords {
  TextView from, moved, to;
};
constexpr AxisWords kItemWords{u"項目", u"移動項目：項目", u" を　項目"};
constexpr AxisWords kRecordWords{u"記録", u"移動記録：記録", u" を　記録"};

Text span(std::int32_t first, std::int32_t last) {
  return first == last ? decimal(first) : decimal(first) + u"から" + decimal(last);
}

Text pointerSentence(Pointing what, Axis axis) {
  const bool records = axis == Axis::records;
  const AxisWords& words = records ? kRecordWords : kItemWords;
  const RangeBlock block = heldBlock();
  const std::int32_t first = records ? block.rec1 : block.item1, last = records ? block.rec2 : block.item2;
  const bool copies = what == Pointing::cellsToCopy;
  const Text end = copies ? u"にｺﾋﾟｰ" : what == Pointing::cellsToMove ? u"に移動" : u"の前に";
  return Text(words.from) + decimal(first) + Text(words.moved) + span(first, last) + Text(words.to) + decimal(moveTo) +
         end;
}

void stand(Axis axis, std::int32_t place) {
  moveTo = place;
  if (axis == Axis::items) {
    curItem = static_cast<std::int16_t>(place);
    return;
  }
  curRec = place;
  loadCache(curRec);
}

// A jump may be given up in its question, which is no refusal.
bool jumpWish(Pointing what, const KeyEvent& key, std::optional<Wish>& wish) {
  if (key.is('H', shift::Ctrl) && isOnAxis(what, Axis::items)) {
    wish = askItemPlace();
  } else if (key.is('J', shift::Ctrl) && isOnAxis(what, Axis::records)) {
    wish = askRecordPlace();
  } else {
    return false;
  }
  return true;
}

bool isJumpKey(const KeyEvent& key) { return key.is('H', shift::Ctrl) || key.is('J', shift::Ctrl); }

}  // namespace

bool movePointer(Pointing what, const KeyEvent& key, Text& sentence) {
  sentence.clear();
  std::optional<Wish> wish = arrowWish(key);
  if (!wish && !isJumpKey(key)) return false;
  if (!wish && jumpWish(what, key, wish) && !wish) return true;
  const auto place = wish && isOnAxis(what, wish->axis) ? allowedPlace(what, *wish) : std::nullopt;
  if (!place || (*place == placeOn(wish->axis) && !isJumpKey(key))) {
    host().beep();
    return true;
  }
  stand(wish->axis, *place);
  sentence = pointerSentence(what, wish->axis);
  return true;
}

}  // namespace zelko
