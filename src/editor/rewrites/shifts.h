// Shifting the data of the current record.
#pragma once

namespace zelko {

void shiftLeft(int item);   // the cells behind the item, one item to the left, each fitted to its new item
void shiftRight(int item);  // a blank at the item; the bytes behind it move right, whatever their borders

}  // namespace zelko
