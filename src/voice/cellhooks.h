// Where the user is, said from every form; spoken by the floor that knows the table.
#pragma once

namespace zelko {

void talkCell();   // the current cell
void talkRange();  // the current record, or the held stretch of items

// The item list of the open table, which a spoken input box offers; does nothing but beep without a table.
void showItemList();

}  // namespace zelko
