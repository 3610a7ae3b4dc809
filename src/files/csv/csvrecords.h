// From the fields of a CSV line to the record of a table, and back.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "files/csv/csvreader.h"
#include "store/table/description.h"
#include "store/table/table.h"

namespace zelko {

struct CsvCounts {
  std::int64_t cutCells = 0;        // something of the text did not fit
  std::int64_t lostCharacters = 0;  // without a code in Shift-JIS: "?" stands in their place
  std::int64_t passedCells = 0;     // not blank, and behind the last item
};

// Makes the record of a line: field 0 into item 0 and so on.
class CsvRecordMaker {
 public:
  CsvRecordMaker(std::vector<ItemLine> items, bool utf8);
  // The record whole, its line end too.
  void make(const CsvLine& line, CacheRow& out);
  const CsvCounts& counts() const { return counts_; }

 private:
  std::string_view inShiftJis(std::string_view field);

  std::vector<ItemLine> items_;
  bool utf8_;
  CsvCounts counts_;
  std::string scratch_;
};

// The characters of a text that have no code in Shift-JIS.
std::int64_t charactersWithoutCode(TextView text);

// The line of a record with its line end, put behind `out`.
class CsvLineWriter {
 public:
  virtual ~CsvLineWriter() = default;
  virtual void head(std::string& out) const = 0;  // what stands in front of the first record
  virtual void line(const char* record, std::string& out) = 0;
};

// Shift-JIS, each cell in quotes with its blanks, nothing doubled, no heading.
class PlainCsv : public CsvLineWriter {
 public:
  explicit PlainCsv(const std::vector<ItemLine>& items);
  void head(std::string&) const override {}
  void line(const char* record, std::string& out) override;

 private:
  std::vector<int> widths_;
  std::string scratch_;
};

// What a spreadsheet expects: UTF-8 with its mark, the names of the items in the first line, cells without the blanks
// around them, a quote in a cell doubled.
class SheetCsv : public CsvLineWriter {
 public:
  explicit SheetCsv(std::vector<ItemLine> items);
  void head(std::string& out) const override;
  void line(const char* record, std::string& out) override;

 private:
  std::vector<ItemLine> items_;
};

}  // namespace zelko
