// Any bytes as a CSV file: whole records, as many as lines, and a proposal that the design can take.
#include "files/csv/csvimport.h"
#include "files/csv/csvproposal.h"
#include "fuzz/target.h"
#include "store/store_fixture.h"

namespace zelko::test {

namespace {

void checkCsv(std::string_view bytes) {
  static const StoreFixture store;
  const auto goesOn = [](std::int64_t) { return true; };
  store.write("in.csv", bytes);
  for (const bool quotesProtect : {false, true}) {
    store.table("t.txt", {3, 5, 200}, {"old"}, {1});
    require(store.open("t.txt"), "the table");
    const CsvImported done = importCsv({store.name("in.csv"), quotesProtect, false}, goesOn);
    const std::string after = store.bytes("t.txt");
    require(done.end == JobEnd::done && after.starts_with(record("old")), "an import");
    require(after.size() == static_cast<std::size_t>(done.records + 1) * recLen, "whole records");
    for (std::size_t end = recLen; end <= after.size(); end += recLen)
      require(after.substr(end - 2, 2) == "\r\n", "a record without its end");
  }
  CsvFile file;
  require(file.open(store.name("in.csv")) && file.recognise(goesOn), "a file");
  CsvSurvey survey(file.isUtf8());
  CsvReader reader = file.reader(true);
  for (CsvLine line; reader.next(line);) survey.take(line);
  int sum = 0;
  for (const ItemLine& item : survey.proposal().items) {
    sum += item.width;
    require(item.width > 0 && item.name.find(u',') == Text::npos, "an item");
  }
  require(sum <= kDataBytes, "the sum of the widths");
}

const bool added = addFuzzTarget(
    {"csv", {"\"", "\"\"", ",", "\r\n", "\"\n", "\x1A", "\xEF\xBB\xBF", "\xE5\xB1\xB1", "\x81", " "}, checkCsv});

}  // namespace

}  // namespace zelko::test
