#include "editor/ranges/range.h"

#include <algorithm>

#include "editor/main/commands.h"
#include "editor/ranges/rangecommands.h"
#include "editor/ranges/rangedialog.h"
#include "editor/ranges/rangemoves.h"
#include "editor/ranges/targetdialog.h"
#include "platform/forms/form.h"
#include "platform/text/number.h"
#include "store/table/cursor.h"

namespace zelko {

RangeBlock heldBlock() {
  return {std::min(rangeRec1, rangeRec2), std::max(rangeRec1, rangeRec2), std::min(rangeItem1, rangeItem2),
          std::max(rangeItem1, rangeItem2)};
}

void orderRange() {
  const RangeBlock block = heldBlock();
  rangeRec1 = block.rec1;
  rangeRec2 = block.rec2;
  rangeItem1 = block.item1;
  rangeItem2 = block.item2;
}

Text recordsWords(const RangeBlock& block) {
  if (block.rec1 == block.rec2) return decimal(block.rec1) + u"記録";
  return u"記録" + decimal(block.rec1) + u"から" + decimal(block.rec2) + u"の範囲の記録";
}

Text itemsWords(const RangeBlock& block) {
  if (block.item1 == block.item2) return decimal(block.item1) + u"項目";
  return u"項目" + decimal(block.item1) + u"から" + decimal(block.item2) + u"の範囲の項目";
}

Text rectangleWords(const RangeBlock& block) { return recordsWords(block) + u"に於ける、" + itemsWords(block); }

Colour rangeColour() { return rangeKind == 1 ? 0xC0C0FF : 255; }
Colour targetColour() { return rangeKind == 1 ? 0x80FF80 : 65280; }

void registerRanges() {
  registerForm<frmHANI>();
  registerForm<frmMSSG>();
  registerRangeCommands();
  registerRangeMoves();
}

}  // namespace zelko
