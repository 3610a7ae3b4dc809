// What the drive and folder boxes of an analysis say: they choose where KEKKA.TXT goes.
#pragma once

#include "parts/disk/diskboxes.h"

namespace zelko {

DiskWords resultFolderWords();

// The label beside the boxes: its own instruction, then the file.
Text resultFolderLabel(TextView instruction, TextView folder);

}  // namespace zelko
