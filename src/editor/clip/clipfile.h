// The two files behind the clip commands, as they lie on disk; see docs/clip-file.md. They lie in the program's folder.
#pragma once

#include <cstdint>
#include <string>

#include "platform/files/ownedfile.h"
#include "platform/text/text.h"
#include "store/table/table.h"

namespace zelko {

// The rectangle that a clip is made from; the first of a pair is not above the second.
struct Block {
  std::int32_t rec1, rec2;
  std::int16_t item1, item2;
};

// Writes a clip file. Each call gives the error so far. The old clip file stands until `finish`, which puts the whole
// new one, on the disk, in its place; without it, or where it fails, the old one stays.
class ClipWriter {
 public:
  ~ClipWriter();
  FileError open(const Block& block);
  FileError cell(TextView text);
  FileError finish();

 private:
  OwnedFile file_;
};

// Reads a clip file. A comma ends a field, wherever it stands: a cell that holds one slips into the next.
class ClipReader {
 public:
  bool open();    // false where there is none
  bool header();  // false where its lines run out or a count is none
  std::int32_t records() const { return records_; }
  std::int32_t items() const { return items_; }
  bool next(Text& cell);  // false where the lines have run out
  void close() { file_.close(); }

 private:
  bool field(Text& out);
  bool counted(std::int32_t& count);

  OwnedFile file_;
  Text line_;
  std::size_t at_ = 0;
  bool rest_ = false;  // the line goes on behind a comma
  std::int32_t records_ = 0, items_ = 0;
};

// The records as they were before a paste, byte for byte up to the end of the last item; and in a file beside it which
// table it is, in which state, so that an undo writes into no other. As with the clip file, `finish` puts both in the
// place of the old ones; they are on the disk then.
class BackupWriter {
 public:
  ~BackupWriter();
  FileError open(std::int32_t first);
  FileError record(std::string_view data);  // 254 bytes
  FileError finish();

 private:
  OwnedFile file_;
};

enum class BackupFits { none, elsewhere, here };
// Whether there is a backup, and whether it is that of the last paste into the open table, which has had no record
// inserted, deleted or moved and no item changed since.
BackupFits backupFits();

class BackupReader {
 public:
  // The number of the first record; 0 where it can't be read.
  std::int32_t open();
  bool next(std::string& bytes);  // false at the end

 private:
  OwnedFile file_;
};

}  // namespace zelko
