// The open table and other programs: two of them on one table, and one that changes it behind our back.
#pragma once

#include <cstdint>

#include "platform/text/text.h"

namespace zelko {

// How the data file of a table is to be opened.
enum class Sharing { forWriting, toRead, notAtAll };

// Where another program has that table open the user is asked: yes opens it for writing, no to read only, Esc leaves
// it closed.
Sharing askToShare(const Text& fullName);
// Opens it as file 1, and tells other programs so for as long as it is open or this program runs. False where it can't
// be opened.
bool openDataFile(const Text& fullName, Sharing sharing);
// The table was opened to read only, at the user's wish: its writes are refused like those of a read-only file.
bool openedToRead();
// From its next opening on it is open for writing again.
void openForWritingAgain();

// The name of the open table leads to another file than the one that is open. False where it leads nowhere.
bool openFileWasReplaced();

enum class Choice { ours, theirs, neither };
// The question whose record is to stay, where another program has changed it or replaced the file.
Choice askWhoseRecord(std::int32_t record, bool replaced);
// Opens the table that the name leads to now, item file and all; the cursor stays where there is such a place.
bool openAgain();
// Before a rewrite: where the file was replaced the user is asked, and unless ours is to be written the other one is
// read and shown. True where nothing may be written.
bool refusedForAnother();

}  // namespace zelko
