// The item file beside a table, and opening a table by it.
#pragma once

#include "store/table/description.h"
#include "store/table/table.h"

namespace zelko {

// The path of the item file of a data file: "K" in front of the name; the one that exists in any case of its letters,
// else with a capital "K".
Text itemFilePath(TextView path, TextView drive);

// Fills the table description, without itemStart. `error` is empty, or "error" after a message was told; then the
// description is as it was and all files are closed. The read-only mark is hidden either way.
void readKFile(TextView path, TextView drive, Text& error);
// The same into the second set, otherItemStart included. Where `closesFiles` is false a failure leaves the files of the
// open table open.
void readKFileOther(TextView path, TextView drive, Text& error, bool closesFiles = true);
// Writes the table description, as a whole file that takes the place of the old one. False, nothing told, and the old
// file stands, where the item file is read-only, the folder can't be written or the disk is full.
bool writeKFile(TextView path, TextView drive);
// The same for a description that is not that of the open table.
bool writeKFileOf(TextView path, TextView drive, const TableDescription& table);
// The item file KWORK.QQQ of a rewrite, beside the open table: items 0 to `count` of the second set. False, nothing
// told and no such file, where it could not be written.
bool writeKFileWork(int count);
// The full name of a file in the folder of the open table.
Text besideTable(TextView name);

// Splits a full name into docDrive and docPath's parts; a relative name is taken from appDir.
void splitName(TextView fullName, Text& drive, Text& path);
// Drive and path joined for the file system.
Text joinName(TextView drive, TextView path);

// Opens the table of that full name: item file, data file (made where there is none), first records, cursor on record
// 1, item 0; the caller then shows the cell and the title. `error` as above; on an error names, description and cursor
// of the table that was open are kept, and its files are closed.
void openTable(TextView fullName, Text& error);
// Opens the data file of the current names again as file 1 (after closeAll); false where it is gone or can't be opened.
bool reopenData();

}  // namespace zelko
