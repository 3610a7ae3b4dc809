// The table that a job puts records into: behind those that are there, or in place of what stood there.
#pragma once

#include "store/records/appender.h"
#include "store/table/description.h"

namespace zelko {

class OutputTable {
 public:
  // False after a message: the open table itself, or a file that can't be written. Where a file of another shape stands
  // there the user is asked, and no is false too.
  bool open(const Text& fullName);
  // The same for a table that takes the place of the old one when it is whole; an old one is asked about.
  bool replace(const Text& fullName);
  RecordAppender& records() { return records_; }
  // All of it is on the disk, the item file too: that of the open table's items, or another one. False, nothing told
  // and all taken back, where something failed.
  bool finish();
  bool finish(const TableDescription& table);
  void takeBack() { records_.takeBack(); }

 private:
  bool mayUse(const Text& fullName) const;
  bool opened(FileError error) const;

  Text fullName_, unfinished_;  // the second one where the table takes the place of another
  RecordAppender records_;
};

// "編集中のﾌｧｲﾙと同じです｡" where the name leads to the open table; true then.
bool refusedAsOpenTable(const Text& fullName);

}  // namespace zelko
