// The read-only attribute of the open table's data file. A table that the user opened to read only, while another
// program had it, counts as read-only too.
#pragma once

namespace zelko {

bool tableIsReadOnly();
// For a command that rewrites the table: tells the notice and answers true when the table is read-only. Where
// another program has replaced the file the user is asked, and it is true too unless ours is to be written.
bool refusedAsReadOnly();
// The question of the menu, and on yes the attribute is changed and the mark shown or hidden. Before the file is locked
// the current row is stored; a change that fails is told as a write error. A beep where no table is open.
void toggleReadOnly();

}  // namespace zelko
