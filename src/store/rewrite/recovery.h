// The swap at the end of a rewrite, told in a small file beside the table, so that one that was interrupted can be
// brought to its end. A folder is not trusted: the note names bare files of its own folder, a table and its item file,
// and counts only where the files are those that the rewrite made, byte for byte. docs/durability.md tells the whole.
#pragma once

#include <optional>

#include "store/rewrite/filemark.h"

namespace zelko {

inline constexpr TextView kWorkFile = u"WORK.QQQ", kWorkItemFile = u"KWORK.QQQ", kSwapNote = u"SWAP.QQQ";

struct Swap {
  Text folder;        // of the note and the item files, with a "/" at its end
  Text data;          // bare name of the data file that WORK.QQQ becomes
  Text items;         // bare name of the item file that KWORK.QQQ becomes; empty where the items do not change
  FileMark dataMark;  // of the finished work files
  FileMark itemsMark = {};
};

// Writes the note for finished work files, on the disk; false, and no note, where it does not reach it.
bool noteSwap(const Swap& swap);
void forgetSwap(TextView folder);

// The interrupted swap of that folder: only the item file has not been changed yet, or the data file is gone and its
// work file is whole. A note whose swap has come to its end is deleted.
std::optional<Swap> interruptedSwap(TextView folder);
// The rest of such a swap; false where a file could not get its name, and the note stays.
bool finishSwap(const Swap& swap);

// Before the table of that name is opened (or, with a folder's name that ends in "/", at the start): an interrupted
// swap beside it is told, and finished when the user says yes; other work files that a kill left there are deleted when
// the user says yes. False where that very table can't be opened for it: the user said no, or it failed and was told;
// nothing is lost by either.
bool offerRecovery(TextView fullName);

// Who said no to deleting what was left in a folder is asked again, as by a program that starts.
void resetRecovery();

// Before a rewrite of a table in that folder: its work files must not take the place of those of an interrupted swap,
// which is offered again. False, told, where it is still there.
bool roomForRewrite(TextView folder);

}  // namespace zelko
