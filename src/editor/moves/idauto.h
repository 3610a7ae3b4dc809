// Numbering of the ID item.
#pragma once

namespace zelko {

void idAuto();  // on or off, asked and told
// The running ID number into the ID cell of the current row.
void stampId();

}  // namespace zelko
