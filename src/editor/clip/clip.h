// The clip file: the program's own clipboard on disk, for blocks of cells. What a paste writes over goes to a backup
// first, so that the last paste can be undone. docs/clip-file.md tells the two formats.
#pragma once

namespace zelko {

// The cells of the range to the clip file, and their text to the user's channel; then the range is dropped, with its
// mask. False where nothing may follow that relies on the copy: no range (told), the user stopped it, or the file
// failed (told).
bool clipCopy();

// The clip file over the records from the cursor on, or between them. Cells behind the last item are dropped, records
// behind the last one lengthen the table. A stop takes back what was pasted.
void pasteOver();
void pasteInsert();
// Puts the records of the last paste back as they were, after a question; records that it inserted stay, blank.
void pasteUndo();

// The clip file as lines of text on the user's channel.
void clipToClipboard();

void registerClip();

}  // namespace zelko
