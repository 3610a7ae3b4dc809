// The item file beside a table, and opening a table by it.
#pragma once

#include "store/table.h"

namespace zelko {

// The path of the item file of a data file: "K" in front of the name; the one that exists in any case of its letters,
// else with a capital "K".
Text itemFilePath(TextView path, TextView drive);

// Fills the table description. `error` is empty, or "error" after a message was told; all files are closed then.
void readKFile(TextView path, TextView drive, Text& error);
// The same into the second set; in mode "delfile" a failure closes file 2 only.
void readKFileOther(TextView path, TextView drive, Text& error);
// Writes the table description; false, and the old file stands, where it could not be written.
bool writeKFile(TextView path, TextView drive);
// The item file of a work table, for `count` + 1 items, beside the open table.
bool writeKFileWork(int count);

// Splits a full name into docDrive and docPath's parts; a relative name is taken from appDir.
void splitName(TextView fullName, Text& drive, Text& path);
// Drive and path joined for the file system.
Text joinName(TextView drive, TextView path);

// Opens the table of that full name: item file, data file, first records, cursor on record 1, item 0. `error` as above;
// on an error the names of the table that was open are kept, and its files are closed.
void openTable(TextView fullName, Text& error);
// Opens the data file of the current names again as file 1 (after closeAll).
bool reopenData();

// The read-only attribute of the data file.
bool tableIsReadOnly();
// For a command that rewrites the table: tells the notice and answers true when the table is read-only.
bool refusedAsReadOnly();
// The question of the menu, and on yes the attribute is changed and the mark shown or hidden.
void toggleReadOnly();

}  // namespace zelko
