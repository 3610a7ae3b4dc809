#include "parts/grid/cellfault.h"

#include <algorithm>
#include <iterator>

#include "platform/forms/controls.h"
#include "voice/dialogs.h"
#include "voice/talk.h"

namespace zelko {

void markWhole(TextBox& box) { box.setSelection(0, static_cast<int>(box.content().size())); }

bool isWholeMarked(const TextBox& box) { return box.selLength() == static_cast<int>(box.content().size()); }

Text withoutLineEnds(TextView typed) {
  Text line;
  std::ranges::copy_if(typed, std::back_inserter(line), [](char16_t ch) { return ch != u'\r' && ch != u'\n'; });
  return line;
}

void tellCellFault(const CellFault& fault, TextBox& back) {
  if (!fault.said.empty()) talkNow(Text(fault.said));
  {
    const Silence silence;
    back.setFocus();
    markWhole(back);
  }
  showOK(fault.text, fault.title);
}

}  // namespace zelko
