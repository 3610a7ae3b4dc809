#include "editor/clip/clipfile.h"

#include <algorithm>

#include "platform/fault.h"
#include "platform/files/blockfiles.h"
#include "platform/files/workfiles.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/rewrite/filemark.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr char16_t kQuote = u'"';
constexpr std::size_t kLongestLine = 4096;  // of a cell, or of a record; several times what each can hold

// A file, and the work file that it is until it is whole.
struct Names {
  TextView file, work;
};
constexpr Names kClip{u"ZLKCLip", u"CLIP.QQQ"};
constexpr Names kBackup{u"ZLKCLip.bak", u"CLIPBAK.QQQ"};
constexpr Names kBackupOf{u"ZLKCLip.for", u"CLIPFOR.QQQ"};

Text asItStands(const Names& names) {
  const Text name = appDir + Text(names.file);
  return findIgnoringCase(name).value_or(name);
}

FileError openForInput(OwnedFile& file, const Names& names) {
  return file.openInput(asItStands(names), kNoBound, kLongestLine);
}

FileError openForOutput(OwnedFile& file, const Names& names) {
  return isReadOnly(asItStands(names)) ? FileError::pathAccess : file.openNewOutput(appDir + Text(names.work));
}

// Whole and on the disk, still under its working name.
FileError finishWork(OwnedFile& file) {
  const FileError error = syncFile(file.number());
  const FileError closing = file.close();
  return error != FileError::none ? error : closing;
}

FileError putInPlace(const Names& names) { return renameOver(appDir + Text(names.work), asItStands(names)); }

void dropWork(OwnedFile& file, const Names& names) {
  if (!file.isOpen()) return;
  file.close();
  removeOwnName(appDir + Text(names.work));
}

// 0 for what is no record number.
std::int32_t numberOf(TextView field) {
  try {
    return std::max(0, toInt32(val(field)));
  } catch (const Fault&) {
    return 0;
  }
}

FileError printNumbers(const OwnedFile& file, std::int32_t first, std::int32_t last) {
  FileError error = printLine(file.number(), decimal(std::int64_t{last} - first + 1));
  for (std::int32_t number = first; number <= last && error == FileError::none; ++number)
    error = printLine(file.number(), decimal(number));
  return error;
}

// A field between quotes loses them; of a cell that was split at a comma each piece loses the one that it got.
Text unquoted(TextView piece, bool split) {
  piece.remove_prefix(std::min(piece.find_first_not_of(u' '), piece.size()));
  const std::size_t last = piece.find_last_not_of(u' ');
  if (last == TextView::npos) return {};
  const bool front = piece.front() == kQuote, back = piece[last] == kQuote;
  if (front && back && last > 0) return Text(piece.substr(1, last - 1));
  if (split && front) return Text(piece.substr(1));
  if (split && back) return Text(piece.substr(0, last));
  return Text(piece);
}

// How far into a record the items reach.
std::size_t dataLength() {
  const auto last = static_cast<std::size_t>(itemCount);
  return static_cast<std::size_t>(std::clamp(itemStart[last] + itemWidth[last] - 1, 0, kDataBytes));
}

// --- What a backup belongs to --------------------------------------------------------------------------------

constexpr TextView kHead = u"zelko backup 1";

// The open table, as it lies on the disk: a rewrite makes another file of it.
Text stateOfTable() {
  Text state = behindLinks(joinName(docDrive, docPath)) + u"\n" + fromUtf8(fileIdentity(1)) + u"\n";
  for (std::size_t i = 0; i <= static_cast<std::size_t>(itemCount); ++i) state += decimal(itemWidthLoaded[i]) + u" ";
  return state;
}

// Head, the table's name, its identity and its widths, the mark of the backup, the number of records before the paste.
Text backupOf(const FileMark& backup, std::int64_t records) {
  return Text(kHead) + u"\n" + stateOfTable() + u"\n" + markText(backup) + u"\n" + decimal(records) + u"\n";
}

FileError writeBackupOf(const Text& text) {
  OwnedFile file;
  FileError error = openForOutput(file, kBackupOf);
  if (error == FileError::none) error = printBytes(file.number(), toUtf8(text));
  if (error == FileError::none) error = finishWork(file);
  dropWork(file, kBackupOf);
  return error;
}

}  // namespace

FileError ClipWriter::open(const Block& block) {
  FileError error = openForOutput(file_, kClip);
  if (error == FileError::none) error = printNumbers(file_, block.rec1, block.rec2);
  if (error == FileError::none) error = printNumbers(file_, block.item1, block.item2);
  return error;
}

FileError ClipWriter::cell(TextView text) {
  Text line(1, kQuote);
  line.append(text).push_back(kQuote);
  return printLine(file_.number(), line);
}

FileError ClipWriter::finish() {
  FileError error = finishWork(file_);
  if (error == FileError::none) error = putInPlace(kClip);
  if (error != FileError::none) removeOwnName(appDir + Text(kClip.work));
  return error;
}

ClipWriter::~ClipWriter() { dropWork(file_, kClip); }

bool ClipReader::open() { return openForInput(file_, kClip) == FileError::none; }

bool ClipReader::field(Text& out) {
  const bool continued = rest_;
  if (!continued) {
    if (readLine(file_.number(), line_) != FileError::none) return false;
    at_ = 0;
  }
  const std::size_t comma = line_.find(u',', at_);
  rest_ = comma != Text::npos;
  const TextView piece = TextView(line_).substr(at_, rest_ ? comma - at_ : Text::npos);
  at_ = comma + 1;
  out = unquoted(piece, continued || rest_);
  return true;
}

bool ClipReader::counted(std::int32_t& count) {
  Text text;
  if (!field(text)) return false;
  count = numberOf(text);
  for (std::int32_t number = 0; number < count; ++number)
    if (!field(text)) return false;
  return count > 0;
}

bool ClipReader::header() { return counted(records_) && counted(items_); }

bool ClipReader::next(Text& cell) { return field(cell); }

FileError BackupWriter::open(std::int32_t first) {
  const FileError error = openForOutput(file_, kBackup);
  return error == FileError::none ? printLine(file_.number(), decimal(first)) : error;
}

// A line end inside a record would make two lines of it, and the undo would then run over the record behind.
FileError BackupWriter::record(std::string_view data) {
  std::string line(data.substr(0, dataLength()));
  std::replace_if(
      line.begin(), line.end(), [](char byte) { return byte == '\r' || byte == '\n'; }, ' ');
  return printBytes(file_.number(), '"' + line + "\"\r\n");
}

// A kill between the two leaves a backup that fits nothing, and a table in which nothing was changed.
FileError BackupWriter::finish() {
  FileError error = finishWork(file_);
  const auto mark = markOfFile(appDir + Text(kBackup.work));
  if (error == FileError::none && !mark) error = FileError::device;
  if (error == FileError::none) error = writeBackupOf(backupOf(*mark, recCount()));
  if (error == FileError::none) error = putInPlace(kBackup);
  if (error == FileError::none) error = putInPlace(kBackupOf);
  if (error == FileError::none) return error;
  for (const Names& names : {kBackup, kBackupOf}) removeOwnName(appDir + Text(names.work));
  return error;
}

BackupWriter::~BackupWriter() { dropWork(file_, kBackup); }

BackupFits backupFits() {
  constexpr std::size_t kLongest = 65536;
  const Text backup = asItStands(kBackup);
  if (!fileExists(backup)) return BackupFits::none;
  const auto bytes = readOwnFile(asItStands(kBackupOf), kLongest);
  const auto mark = markOfFile(backup);
  if (!bytes || !mark) return BackupFits::elsewhere;
  const Text told = fromUtf8(*bytes), wanted = backupOf(*mark, 0);
  const std::size_t same = wanted.size() - 2;  // all but the last line
  if (told.substr(0, same) != wanted.substr(0, same)) return BackupFits::elsewhere;
  return numberOf(told.substr(same)) <= recCount() ? BackupFits::here : BackupFits::elsewhere;
}

std::int32_t BackupReader::open() {
  Text line;
  if (openForInput(file_, kBackup) != FileError::none) return 0;
  return readLine(file_.number(), line) == FileError::none ? numberOf(unquoted(line, false)) : 0;
}

bool BackupReader::next(std::string& bytes) {
  if (readLineBytes(file_.number(), bytes) != FileError::none) return false;
  if (bytes.size() < 2 || bytes.front() != '"' || bytes.back() != '"') return false;
  bytes = bytes.substr(1, bytes.size() - 2);
  return true;
}

}  // namespace zelko
