#include "files/csv/csvexport.h"

#include <memory>

#include "files/csv/csvrecords.h"
#include "platform/files/blockfiles.h"
#include "platform/files/ownedfile.h"
#include "platform/files/workfiles.h"
#include "store/records/records.h"
#include "store/records/walk.h"
#include "store/rewrite/rewrite.h"
#include "store/table/itemfile.h"

namespace zelko {

namespace {

constexpr TextView kUnfinished = u"CSV.QQQ";
constexpr std::size_t kBlock = 262144;

class CsvOutput {
 public:
  FileError create(const Text& name) {
    const FileError free = removeOwnName(name);
    return free == FileError::none ? file_.createRandom(name, 1) : free;
  }
  std::string& waiting() { return waiting_; }
  bool write(std::size_t least) {
    if (waiting_.size() < least) return true;
    const bool reached = writeBlock(file_.number(), written_, waiting_) == FileError::none;
    written_ += static_cast<std::int64_t>(waiting_.size());
    waiting_.clear();
    return reached;
  }
  bool finish() { return write(0) && syncFile(file_.number()) == FileError::none && close(); }
  bool close() { return file_.close() == FileError::none; }

 private:
  OwnedFile file_;
  std::string waiting_;
  std::int64_t written_ = 0;
};

std::unique_ptr<CsvLineWriter> writerFor(bool forSpreadsheet) {
  if (forSpreadsheet) return std::make_unique<SheetCsv>(itemsOnDisk());
  return std::make_unique<PlainCsv>(itemsOnDisk());
}

JobEnd writeLines(CsvOutput& output, CsvLineWriter& writer, const CsvExportGoesOn& goesOn) {
  Walk all;
  all.last = recCount();
  JobEnd end = JobEnd::done;
  writer.head(output.waiting());
  const auto line = [&](const WalkedRecord& record) {
    if (!goesOn(record.number())) end = JobEnd::stopped;
    writer.line(record.bytes().data(), output.waiting());
    if (!output.write(kBlock)) end = JobEnd::failed;
    return end == JobEnd::done;
  };
  if (walkRecords(all, line) == WalkEnd::failed) end = JobEnd::failed;
  if (end == JobEnd::done && !output.finish()) end = JobEnd::failed;
  return end;
}

}  // namespace

Text csvNameOf(TextView dataFile) {
  const std::size_t dot = dataFile.rfind(u'.'), slash = dataFile.rfind(u'/');
  const bool inName = dot != TextView::npos && (slash == TextView::npos || dot > slash);
  return Text(dataFile.substr(0, inName ? dot : dataFile.size())) + u".csv";
}

JobEnd exportCsv(const Text& fullName, bool forSpreadsheet, const CsvExportGoesOn& goesOn) {
  const Text unfinished = fullName.substr(0, fullName.rfind(u'/') + 1) + Text(kUnfinished);
  CsvOutput output;
  if (output.create(unfinished) != FileError::none) return JobEnd::failed;
  copyPermissions(joinName(docDrive, docPath), unfinished);  // but not that it can't be written
  setReadOnly(unfinished, false);
  JobEnd end = writeLines(output, *writerFor(forSpreadsheet), goesOn);
  output.close();
  if (end == JobEnd::done && replaceFile(unfinished, fullName) != FileError::none) end = JobEnd::failed;
  if (end != JobEnd::done) removeOwnName(unfinished);
  return end;
}

}  // namespace zelko
