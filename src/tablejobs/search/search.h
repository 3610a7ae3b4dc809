// Searching the open table for a string: the form, the same again without it, and the count of what there is.
#pragma once

#include <optional>

#include "tablejobs/search/matcher.h"
#include "tablejobs/search/searchscan.h"

namespace zelko {

// What is searched for and how, as last set; it outlives the form.
struct SearchSettings {
  SearchTerms terms;
  SearchWay way;
};

// One round over the table, which may be broken at each hit and gone on with: it ends at the cell where it began.
class SearchRound {
 public:
  // Looks on from the cursor; the round begins there unless it is going on. The table has at least one record.
  Scan next(const SearchSettings& settings, TextView work, const std::function<bool(CellAt)>& onRecord);
  bool isOpen() const { return open_; }
  void end() { open_ = false; }

 private:
  bool open_ = false;
  CellAt start_;
};

// Stores the input box and the row, and drops the range: a search may begin. False, told, on a new line that holds
// nothing, and where no table is open.
bool storedForSearch();
// The cursor on that cell, shown without a word.
void showFoundCell(CellAt at);
// "見つかりました、…" for the cell of the cursor, with its pauses.
void sayFound();
// "｢後方検索終了｣全項目について検索しました" and its kin.
Text roundReport(const SearchWay& way);
void tellSearchUnreadable();

// Ctrl+N and Shift+Ctrl+N: the last search again from the cell of the cursor; without an earlier one the form opens.
void searchAgain(bool towardsHead);
// Shift+Ctrl+H: how many cells there are, and which of them the cursor is on.
void tellHitCount();
// mnuSEARCH, and mnusch of the card: the form beside the editor. A beep and a word on the new line.
void openSearchForm();

// For the forms that search by themselves what was typed here: the form as a plain question, for the job of that word
// ("MLINE" or "MLINE3"). Nothing where it was left without the search button.
struct SearchConditions {
  Text text;
  int allItems = 1, whole = 0, caseCounts = 0;  // Check1, Check2, Check3
  std::int16_t item = 0;                        // where not all are searched
};
std::optional<SearchConditions> askSearchConditions(TextView job);

// The commands of the menus, and the form.
void registerSearch();

}  // namespace zelko
