// What all analyses share: which records they cover, how a cell becomes a number, the pass over the records, and the
// word that tells what is going on.
#pragma once

#include <cstdint>
#include <functional>

#include "store/records/walk.h"

namespace zelko {

// "RP", "RS", "CROS", "FACTOR", "CLUS", "SFCC", "TABLE", "MDIST"; empty while no analysis is open, "BREAK" once the
// user has asked to stop. Published, not read: who must know that a run was stopped asks its AnalysisRun.
extern Text analysisMode;
extern std::int32_t firstRecord, lastRecord;

// Which held range narrows the records; another one, or none, means all of them.
enum class RangeTest {
  bothEnds,      // any range whose two ends are set
  start,         // any range whose start is set
  wholeRecords,  // a range of records only
};
// Sets firstRecord and lastRecord.
void takeAnalysisRange(RangeTest test);

// A cell as the analyses read it: its text, trimmed, and what numCheck says of it.
struct AnalysedCell {
  int check = 0;     // 0 a number, kBlankCell blank, above 0 the place of the first bad character
  double value = 0;  // of a number
  bool isNumber() const { return check == 0; }
};
// Text is tested first and read only where it is a number. A number beyond a double counts as text.
AnalysedCell checkedCell(const WalkedRecord& record, int item);
// The leading number, 0 where there is none or none that a double holds.
double leadingNumber(const WalkedRecord& record, int item);

// Shows the records of the analysis to the callback, behind a dialog of that work where it takes long. False where it
// was stopped (analysisMode is "BREAK" then) or a record could not be read (told).
bool readAnalysisRecords(TextView work, const std::function<bool(const WalkedRecord&)>& look);

// The current row is stored and the range taken; false, told, where there is no table or no record.
bool beginAnalysis(RangeTest test);

}  // namespace zelko
