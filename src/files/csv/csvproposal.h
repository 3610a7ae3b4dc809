// Names and widths of items as a CSV file suggests them.
#pragma once

#include <cstdint>
#include <vector>

#include "files/csv/csvreader.h"
#include "store/table/description.h"

namespace zelko {

struct CsvProposal {
  std::vector<ItemLine> items;    // none for a file without a line
  bool heading = false;           // the first line gives the names
  bool narrowed = false;          // the longest cells don't fit into a record together: the widest items are narrower
  std::int64_t passedFields = 0;  // of the longest line, behind the last item that a table can have
};

// Looks at every line once, and keeps a few numbers for each field.
class CsvSurvey {
 public:
  explicit CsvSurvey(bool utf8) : utf8_(utf8) {}
  void take(const CsvLine& line);
  CsvProposal proposal() const;

 private:
  struct Field {
    std::string first;                       // the text of the first line
    std::size_t firstWidth = 0, widest = 0;  // in bytes of Shift-JIS; the widest behind the first line
    std::int64_t filled = 0, numbers = 0;    // behind the first line
    bool firstComesAgain = false;
  };
  std::size_t widthOf(std::string_view field) const;
  bool looksLikeHeading() const;
  Text nameOf(const Field& field, std::size_t number) const;

  bool utf8_;
  std::int64_t lines_ = 0;
  std::size_t mostFields_ = 0, firstFields_ = 0;  // of any line, of the first one
  std::vector<Field> fields_;
};

// The widths as they are where their sum fits into a record; else the widest are made equal and as wide as there is
// room. True where that was needed.
bool fitWidths(std::vector<ItemLine>& items);

}  // namespace zelko
