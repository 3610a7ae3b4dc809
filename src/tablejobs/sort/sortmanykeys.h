// What the table of sort keys is for.
#pragma once

namespace zelko {

class frmMSORT;

// The checked table is used: in place, or into a file whose name is asked first.
void sortByTable(frmMSORT& table);
// The form goes, nothing was sorted.
void leaveSortTable(frmMSORT& table);

}  // namespace zelko
