// Any bytes as a file of codes: every key in it finds what stands for it, and the table keeps its shape.
#include <algorithm>

#include "files/picker/pickerreference.h"
#include "fuzz/target.h"
#include "platform/text/sjis.h"
#include "store/store_fixture.h"
#include "tablejobs/replace/codereplace.h"

namespace zelko::test {

namespace {

constexpr std::size_t kKeyBytes = 4;

void checkCodes(std::string_view bytes) {
  static const StoreFixture store;
  store.write("Kcodes.txt", itemFileText({kKeyBytes, 6}));
  store.write("codes.txt", bytes);
  Text error;
  refjinput(store.name("codes.txt"), error);
  require(error.empty(), "the file of codes");
  std::vector<std::string> cells = {"a"};
  int blank = 0;
  for (std::size_t at = 0; at + recLen <= bytes.size(); at += recLen) {
    cells.emplace_back(bytes.substr(at, kKeyBytes));
    if (trimmed(fromSjis(cells.back())).empty()) ++blank;
  }
  for (const bool caseCounts : {false, true}) {
    CodeTable codes(caseCounts);
    const CodesRead read = readCodes({store.name("codes.txt"), 1, u"1"}, codes);
    require(read == CodesRead::whole || (read == CodesRead::empty && cells.size() == 1), "a reading");
    const bool knowsFirst = codes.find(u"a") != nullptr;
    store.table("t.txt", {kKeyBytes, 6}, cells);
    require(store.open("t.txt"), "the table");
    const CodesReplaced done = replaceByCodes(codes);
    require(!done.run.failed && !done.run.stopped, "a run");
    require(done.unknown == blank + (knowsFirst ? 0 : 1), "a key that is not found");
    require(done.run.changed + done.unknown == recCount(), "a cell that is passed over");
    const std::string after = store.bytes("t.txt");
    require(after.size() == cells.size() * recLen, "whole records");
    for (std::size_t i = 0; i < cells.size(); ++i) {
      const std::string before = record(cells[i]);
      require(after.substr(i * recLen + kKeyBytes, recLen - kKeyBytes) == before.substr(kKeyBytes), "another item");
    }
  }
}

const bool added =
    addFuzzTarget({"codes", {std::string(256, ' '), "a", "A", "\x82\x81", "\x81", "\xB1", "\r\n", " "}, checkCodes});

}  // namespace

}  // namespace zelko::test
