// The one way to go over the records of a file, and the one way to change many of them: in blocks.
#pragma once

#include <functional>

#include "store/records/recordshape.h"

namespace zelko {

class Progress;

// Which records, of which file, and what the user sees of it.
struct Walk {
  std::int32_t first = 1, last = 0;  // numbers; what lies behind the end of the file is not visited
  bool towardsHead = false;          // from `last` to `first`
  Progress* progress = nullptr;      // shows the way and stops it, a step before each record
  std::int64_t doneBefore = 0;       // steps that it counted before this walk
  Text work = {};          // in place of `progress`: a dialog of that work opens where the walk takes a second
  bool lengthens = false;  // changing only: behind the end blank records are made, visited and stored
  int file = 1;            // open for random access
  const RecordShape* shape = nullptr;  // of its records; that of the open table where it is not told
};

enum class WalkEnd {
  done,
  left,     // the callback said so
  stopped,  // by the user
  failed,   // a record could not be read (changeRecords tells it, walkRecords does not) or not be written (told, once)
};

// A record while it is visited. Its bytes stay where they are until the callback returns.
class WalkedRecord {
 public:
  std::int32_t number() const { return number_; }
  std::string_view bytes() const { return {bytes_, recLen}; }
  std::string_view data() const { return {bytes_, kDataBytes}; }  // without the line end
  // A cell as it stands, as cellOfRow cuts it, and without the blanks at its ends.
  std::string_view cellBytes(int item) const { return zelko::cellBytes(bytes(), shape_.at(item)); }
  Text cell(int item) const { return cellText(bytes(), shape_.at(item)); }
  Text trimmedCell(int item) const { return trimmed(cell(item)); }
  const RecordShape& shape() const { return shape_; }

 protected:
  friend class Walker;
  explicit WalkedRecord(const RecordShape& shape) : shape_(shape) {}
  WalkedRecord(const WalkedRecord&) = delete;
  WalkedRecord& operator=(const WalkedRecord&) = delete;

  const RecordShape& shape_;
  char* bytes_ = nullptr;
  std::int32_t number_ = 0;
};

class Walker;

class ChangedRecord : public WalkedRecord {
 public:
  // As setCell of records.h: padded or cut to the cell, only its bytes change.
  void setCell(int item, TextView text);
  // The same for bytes that are Shift-JIS already.
  void setCellBytes(int item, std::string_view bytes);
  // The first 254 bytes, padded with blanks.
  void setData(std::string_view data);
  // Before a question to the user, and before anything else that could let another program or form see the file: what
  // was changed up to here, this record included, is stored. False where that failed (told): the walk ends then.
  bool store();

 private:
  friend class Walker;
  ChangedRecord(const RecordShape& shape, Walker& walker) : WalkedRecord(shape), walker_(walker) {}
  Walker& walker_;
};

// Shows each record of the walk to the callback, which answers false to leave. Events are let through and a stop is
// obeyed before each record (of many, at every sixteenth). The callback may open dialogs; it does not write the file.
WalkEnd walkRecords(const Walk& walk, const std::function<bool(const WalkedRecord&)>& look);

// The same for a callback that may change the record in its hands. Only records that differ are written, with CR LF
// behind their data: in blocks, in the walk's order, and always before events run, at a stop, at a failure and at the
// end. What another program has written meanwhile beside the changed bytes of a record stays. What was changed before a
// stop or a failure stays changed. The current row has been stored; the cache is to be loaded afterwards.
WalkEnd changeRecords(const Walk& walk, const std::function<bool(ChangedRecord&)>& change);

}  // namespace zelko
