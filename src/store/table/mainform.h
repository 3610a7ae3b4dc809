// What the store needs of the main form; the editor defines it.
#pragma once

namespace zelko {

// Title of the main form: product name, table, record count.
void showTitle();
// The mark "ReadOnly!" of the main form.
bool readOnlyMarkShown();
void showReadOnlyMark(bool shown);

}  // namespace zelko
