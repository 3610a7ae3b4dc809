// Files that the program makes for itself, in folders where anybody may have put anything: made anew, never through a
// link, on the disk when they say so, and read only up to a bound.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/files/files.h"

namespace zelko {

// A new file of that name, for random access or as a text. What stood under the name is gone, a link itself and never
// what it leads to; a folder in the way gives pathAccess, a file that another program is making there permission.
FileError openNewRandom(int number, TextView path, int recordLength);
FileError openNewOutput(int number, TextView path);

// Frees a name that the program uses for itself, as above; none where nothing stands there.
FileError removeOwnName(TextView path);
// Whether a file or a link of that name stands there that no running program is making.
bool isLeftOver(TextView path);
bool isLink(TextView path);

// Gives `from` the name of `to` in one step, whatever stands there but a folder, and never through a link; the folder
// is on the disk then.
FileError renameOver(TextView from, TextView to);
// Names that were made, given or taken in the folder of that file are on the disk when this returns.
FileError syncFolderOf(TextView file);

// The bytes of a regular file that is no link and not longer than `most`.
std::optional<std::string> readOwnFile(TextView path, std::size_t most);

// What tells an open file from every other one that had or will have its name; the same while it is written in place.
std::string fileIdentity(int number);

// The permissions of the file of that name, for an open one.
FileError takePermissions(int number, TextView from);

}  // namespace zelko
