// The swap at the end of a rewrite, told in a small file beside the table, so that one that was interrupted can be
// brought to its end: while the note stands, the work files beside it are whole and belong to the table it names.
#pragma once

#include <optional>

#include "platform/text/text.h"

namespace zelko {

inline constexpr TextView kWorkFile = u"WORK.QQQ", kWorkItemFile = u"KWORK.QQQ", kSwapNote = u"SWAP.QQQ";

struct Swap {
  Text folder;  // of the work files and the note, with a "/" at its end
  Text data;    // full name of the data file that WORK.QQQ becomes
  Text items;   // full name of the item file that KWORK.QQQ becomes; empty where the items do not change
};

// Writes the note for finished work files; false, and no note, where it does not reach the disk.
bool noteSwap(const Swap& swap);
// The rest of a swap whose old data file is gone: the work files get their names, and the note goes. False where one
// could not get its name; the note stays then.
bool finishSwap(const Swap& swap);
void forgetSwap(TextView folder);

// The interrupted swap of that folder: the old data file is gone and its work file is whole, or only the item file has
// not been changed yet. A note that has nothing left to tell is deleted.
std::optional<Swap> interruptedSwap(TextView folder);

// Before the table of that name is opened (or, with a folder's name that ends in "/", at the start): an interrupted
// swap beside it is told, and finished when the user says yes. False where that very table can't be opened for it: the
// user said no, or it failed and was told; nothing is lost by either.
bool offerRecovery(TextView fullName);

}  // namespace zelko
