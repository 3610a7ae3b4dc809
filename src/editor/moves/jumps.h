// The fixed places, by key and by menu.
#pragma once

#include "platform/text/text.h"

namespace zelko {

void goToFirstRecord();
void goToFirstRecordAndReport();  // says nothing where the cursor stays: the release of the key reports the item
void goToLastRecord();
void goToNewLine();
void goToLastItem();
void goToFirstItem();  // item 1, past the ID item
void goHome();         // record 1, item 1 (0 where there is no other)
void goToNextRecordStart();

// Ask for a record or an item number; an answer with a sign counts from the cursor. Kept in the table.
void askRecord();
void askItem();

// The answer as a number: with a sign relative to `from`; kept within lowest..highest.
int targetOf(TextView answer, int from, int lowest, int highest);

void registerJumps();

}  // namespace zelko
