// What is shown for the cursor: the controls of the main form, the view beside it, the title.
#pragma once

#include <cstdint>

#include "platform/text/text.h"

namespace zelko {

// Fills the controls of Form1 for that cell.
void showCell(float record, float item, TextView preset, TextView spare);
// The view beside the main form again, from the cache.
void repaintView();
// The same, and the input box gets the focus, unless the user is at another form than the editor's own.
void dispAll(std::int16_t& item);
// showCell and the view for the cursor in silence, for a form that has the keyboard and tells the place itself.
void showUnheard();
// Title of the main form: product name, table, record count.
void showTitle();
// Shows or hides the mark "ReadOnly!" of the main form.
void showMark(bool shown);
// The list of the entry items for Label11, or "全項目".
Text entryItemsCaption();

}  // namespace zelko
