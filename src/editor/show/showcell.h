// What is shown for the cursor: the controls of the main form, the view beside it, the title.
#pragma once

#include <cstdint>

#include "platform/text/text.h"

namespace zelko {

// Fills the controls of Form1 for that cell.
void showCell(float record, float item, TextView preset, TextView spare);
// Repaints the view from the cache and gives the input box the focus when no mode forbids it.
void dispAll(std::int16_t& item);
// Title of the main form: product name, table, record count.
void showTitle();
// Shows or hides the mark "ReadOnly!" of the main form.
void showMark(bool shown);
// The list of the entry items for Label11, or "全項目".
Text entryItemsCaption();

}  // namespace zelko
