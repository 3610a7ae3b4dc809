// Numbered files, as the whole program knows them: 1 is the open data file, 2 to 4 short-lived text files. Numbers
// go from 1 to 15; another one, or one that is not open for the use, gives badNumber. Nothing here throws.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text/text.h"

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
// The same for a file that must not stand there yet (alreadyExists), not even as a link.
FileError createRandom(int number, TextView path, int recordLength);
// The same for a file that is there (notFound), whose writes give pathAccess.
FileError openRandomToRead(int number, TextView path, int recordLength);
constexpr std::int64_t kNoBound = std::numeric_limits<std::int64_t>::max();
constexpr std::size_t kLongestLine = std::size_t{16} << 20;
// A missing file gives notFound, a folder pathAccess, anything else that is no regular file device. Reading goes up to
// `most` bytes, a line or field up to `longestLine`: what a file's format never has is not taken in, and gives device.
FileError openInput(int number, TextView path, std::int64_t most = kNoBound, std::size_t longestLine = kLongestLine);
// Replaces what stands there. Up to 64 KiB are replaced by one write when the file is closed, so that a program that
// is killed leaves the old text or the new one; a longer text empties the file when its first 64 KiB go out.
FileError openOutput(int number, TextView path);
// The same for a file that must not stand there yet (alreadyExists), not even as a link.
FileError createOutput(int number, TextView path);
// Both text writers refuse a file without the owner's write bit (pathAccess), a missing folder gives pathNotFound.
FileError openAppend(int number, TextView path);
bool isOpen(int number);
// Gives an error where not all that was printed reached the file. A number that is not open is closed already.
FileError closeFile(int number);
void closeAll();

// Bytes, as the file is now, whoever lengthened or shortened it; 0 for a number that is not open. Costs one call of
// the system.
std::int64_t fileLength(int number);

// One record, from 1, into `out` (recordLength bytes); what lies behind the end of the file reads as NUL.
// A walk (each record is the next one) is served from a read window of up to 64 KiB: it holds what this program puts
// at once, under whatever number, and what another program writes after a tenth of a second.
FileError getRecord(int number, std::int32_t record, char* out);
// Writes exactly recordLength bytes; a record that could not be written whole leaves the file as it was.
// Record r always begins at byte (r - 1) * recordLength: one behind a short tail overwrites the tail, one further out
// leaves a gap of NUL. A file without the owner's write bit gives pathAccess, one that was deleted meanwhile device.
FileError putRecord(int number, std::int32_t record, const char* bytes);
// What has been written is on the disk when this returns.
FileError syncFile(int number);

// Text reads, Shift-JIS. A field skips leading blanks (U+0020), ends at a comma or line end and loses its quotes
// where it begins and ends with one, with the blanks behind them; they do not protect a comma. LF, CR LF and CR end a
// line, a last line without an end counts. Past the end: pastEnd; so is the field behind a comma that ends the file.
FileError readField(int number, Text& out);
FileError readLine(int number, Text& out);
// A line as the bytes of the file, for what must come back as it was: not every code survives a conversion.
FileError readLineBytes(int number, std::string& out);
bool atEnd(int number);

// Text writes, Shift-JIS: the line with CR LF, or the text as it stands. They are buffered: an error may come with a
// later one or with closeFile, and stays.
FileError printLine(int number, TextView line);
FileError print(int number, TextView text);
FileError printBytes(int number, std::string_view bytes);

bool fileExists(TextView path);  // a file, not a folder
bool folderExists(TextView path);
// A folder, or a file without the owner's write bit, gives pathAccess and stays.
FileError deleteFile(TextView path);
FileError renameFile(TextView from, TextView to);  // refuses a target that exists
// Replaces the target, unless it is read-only (pathAccess) or the very same file (permission). A copy that could not
// be written whole is deleted; a copy of a read-only file can be written.
FileError copyFile(TextView from, TextView to);
// alreadyExists where something of that name stands, pathNotFound where the folder above is missing.
// Gives `from` the name of `to` and its permissions, in one step: at every moment `to` is the old file or the new one.
FileError replaceFile(TextView from, TextView to);
// The file ends behind `length` bytes: what was written behind them is taken back.
FileError cutFile(TextView path, std::int64_t length);
FileError makeDirectory(TextView path);

// The read-only attribute is the owner's write permission bit, read from the mode, not tried. What is missing is not
// read-only.
bool isReadOnly(TextView path);
FileError setReadOnly(TextView path, bool readOnly);
// Whether this user can't write a file that is there, whatever the attribute says: on a medium that can only be read,
// or where the file's owner forbids it.
bool systemForbidsWriting(TextView path);

// The file of that name in any case of its letters (the exact name first, then the first by code unit), its folder
// as given; nullopt where there is none.
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
