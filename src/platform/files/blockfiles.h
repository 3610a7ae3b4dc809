// Whole blocks of random-access files, and what a rewrite of a file needs beside them. Numbers as in files.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/files/files.h"

namespace zelko {

// Bytes from `offset` (from 0) on; `got` is less than `size` at the end of the file only. Past the read window.
FileError readBlock(int number, std::int64_t offset, char* out, std::size_t size, std::size_t& got);
// Writes all of the bytes there. A file that is written from its start to its end is sent to the disk on the way, so
// that syncFile behind it has little left to wait for.
FileError writeBlock(int number, std::int64_t offset, std::string_view bytes);

// Whether its records may be written: pathAccess without the owner's write bit, device where it was deleted meanwhile.
FileError mayWriteRecords(int number);
// Whether the name leads to that very file.
bool leadsTo(TextView path, int number);
// Tells other programs that the file is in use, until it is closed or the program ends, however it ends. False where
// one of them has told so first.
bool lockFile(int number);
// The open file ends behind `length` bytes.
FileError cutOpenFile(int number, std::int64_t length);

// The file that a name leads to through links; the name itself where it is no link or leads nowhere.
Text behindLinks(TextView path);
// Gives `to` the permissions of `from`.
FileError copyPermissions(TextView from, TextView to);
// Length of a file by name; -1 where there is none.
std::int64_t lengthOf(TextView path);

}  // namespace zelko
