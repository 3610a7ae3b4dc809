// Numbered files, as the whole program knows them: 1 is the open data file, 2 to 4 short-lived text files.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/text.h"

namespace zelko {

// The error numbers that the messages of the program tell apart.
enum class FileError {
  none = 0,
  notFound = 53,
  badNumber = 52,
  alreadyOpen = 55,
  device = 57,
  alreadyExists = 58,
  diskFull = 61,
  pastEnd = 62,
  tooMany = 67,
  permission = 70,
  pathAccess = 75,  // read-only, or a folder in the way
  pathNotFound = 76,
};

// Opens for random access by record number; a file that does not exist comes into being empty. A file that
// may not be written is opened for reading, and its writes give pathAccess.
FileError openRandom(int number, TextView path, int recordLength);
FileError openInput(int number, TextView path);
FileError openOutput(int number, TextView path);  // replaces what stands there
FileError openAppend(int number, TextView path);
bool isOpen(int number);
// Gives an error where the last bytes did not reach the file.
FileError closeFile(int number);
void closeAll();

// Bytes; 0 for a number that is not open.
std::int64_t fileLength(int number);

// One record, from 1, into `out` (recordLength bytes); what lies behind the end of the file reads as NUL.
// A sequential walk is served from a read window that stays coherent with putRecord.
FileError getRecord(int number, std::int32_t record, char* out);
// Writes exactly recordLength bytes; a record that could not be written whole leaves the file as it was.
// A file without the owner's write bit gives pathAccess, one that was deleted meanwhile gives device.
FileError putRecord(int number, std::int32_t record, const char* bytes);
// What has been written is on the disk when this returns.
FileError syncFile(int number);

// Text reads, Shift-JIS. A field skips leading blanks, ends at a comma or line end and loses its quotes
// (which do not protect a comma); LF, CR LF and CR end a line. Past the end: pastEnd.
FileError readField(int number, Text& out);
FileError readLine(int number, Text& out);
bool atEnd(int number);

// Text writes, Shift-JIS: the line with CR LF, or the text as it stands.
FileError printLine(int number, TextView line);
FileError print(int number, TextView text);

bool fileExists(TextView path);  // a file, not a folder
bool folderExists(TextView path);
FileError deleteFile(TextView path);
FileError renameFile(TextView from, TextView to);  // refuses a target that exists
FileError copyFile(TextView from, TextView to);    // replaces the target
FileError makeDirectory(TextView path);

// The read-only attribute is the owner's write permission bit, read from the mode, not tried.
bool isReadOnly(TextView path);
FileError setReadOnly(TextView path, bool readOnly);

// The file of that name in any case of its letters (the exact name first); empty where there is none.
std::optional<Text> findIgnoringCase(TextView path);

struct FolderEntry {
  Text name;
  bool folder = false;
};
// Names in the folder, sorted by code unit, without "." and ".."; nullopt where it can't be read.
std::optional<std::vector<FolderEntry>> listFolder(TextView path);

// The path of the current folder with a "/" at its end.
Text currentFolder();

}  // namespace zelko
