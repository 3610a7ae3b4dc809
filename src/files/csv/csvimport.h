// CSV in: the lines of a file become records behind those of the open table.
#pragma once

#include "files/csv/csvfile.h"
#include "files/csv/csvrecords.h"
#include "parts/job/job.h"

namespace zelko {

struct CsvImport {
  Text file;
  bool quotesProtect = true;
  bool passesFirstLine = false;  // it is the heading that gave the items their names
};

struct CsvImported {
  JobEnd end = JobEnd::failed;
  bool opened = false, readable = true;
  std::int64_t records = 0;
  CsvCounts counts;
};

// goesOn is told the bytes that were read. What was written before a stop stays; after a failure the table is as it
// was.
CsvImported importCsv(const CsvImport& import, const CsvGoesOn& goesOn);
// What came of it, for the ear.
Text importedWords(const CsvImported& done);

// The file whose lines gave the design its items: the picker offers it, and where its first line gave the names, its
// import passes that line. Empty where no file did.
struct CsvSurveyed {
  Text file;
  bool heading = false;
};
extern CsvSurveyed csvSurveyed;

}  // namespace zelko
