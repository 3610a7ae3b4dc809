// Any bytes as an item file: read, and every cell cut, or refused with one message.

#include <numeric>

#include "fuzz/target.h"
#include "platform/files/files.h"
#include "store/store_fixture.h"
#include "store/store_host.h"

namespace zelko::test {

namespace {

// One folder for the whole run, and a table whose last record ends in half a character.
const StoreFixture& folder() {
  static const StoreFixture store;
  if (store.files().empty()) store.write("t.txt", record("1") + record("\x81\x40\x81") + std::string(100, 'x'));
  return store;
}

void cutEveryCell() {
  for (std::int32_t number = 1; number <= recCount() + 1; ++number) {
    takeRow(number);
    for (int item = 0; item <= itemCount + 1; ++item)
      require(cellOfCur(item).size() <= recLen, "a cell beyond its record");
  }
  for (int item = 0; item <= itemCount; ++item) setCell(recCache[0], item, u"東x");
}

void checkDescription() {
  require(itemCount >= 0 && itemCount <= kHighestItem, "item count");
  const int sum = std::accumulate(itemWidth.begin(), itemWidth.end(), 0);
  require(sum >= 0 && sum <= recLen, "sum of widths");
  require(itemStart[static_cast<std::size_t>(itemCount) + 1] == sum + 1, "start behind the last item");
}

// What was read is what a reading of its own writing gives.
void checkRoundTrip() {
  const auto widths = itemWidth;
  const auto count = itemCount;
  require(writeKFile(docPath, docDrive), "write");
  Text error;
  readKFile(docPath, docDrive, error);
  require(error.empty() && count == itemCount && widths == itemWidth, "round trip");
}

void checkItemFile(std::string_view bytes) {
  const StoreFixture& store = folder();
  store.write("Kt.txt", bytes);
  const bool opened = store.open("t.txt");
  const auto dialogs = store.dialogs();
  require(dialogs.size() == (opened ? 0U : 1U), "one message, or a table");
  require(isOpen(1) == opened && !isOpen(2), "files left open");
  if (!opened) return;
  checkDescription();
  cutEveryCell();
  checkRoundTrip();
}

const bool added =
    addFuzzTarget({"itemfile",
                   {",", "'", "\r", "\n", "\"", "-", "\x81", "0", "254", "255", "32768", "9E999", "&HFFFF"},
                   checkItemFile});

}  // namespace
}  // namespace zelko::test
