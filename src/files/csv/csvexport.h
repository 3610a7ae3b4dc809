// CSV out: the open table as a CSV file beside it.
#pragma once

#include <functional>

#include "parts/job/job.h"

namespace zelko {

// The data file's name with ".csv" in place of its extension.
Text csvNameOf(TextView dataFile);

// Asked before each record, or each few of them, with its number; false stops.
using CsvExportGoesOn = std::function<bool(std::int32_t record)>;

// Writes all records to that file, which is replaced when the new one is whole; until then, and where it was stopped or
// failed, what stood there stands. `forSpreadsheet`: UTF-8 with a heading, see csvrecords.h.
JobEnd exportCsv(const Text& fullName, bool forSpreadsheet, const CsvExportGoesOn& goesOn);

}  // namespace zelko
