// Any bytes as a clip file, as a backup, and as a formula.

#include "editor/clip/clip.h"
#include "editor/formulas/formula.h"
#include "editor/registereditor.h"
#include "editor/show/view.h"
#include "fuzz/target.h"
#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/text/sjis.h"
#include "store/store_fixture.h"
#include "store/store_host.h"

namespace zelko::test {

namespace {

// One folder and one editor for the whole run.
const StoreFixture& folder() {
  static const StoreFixture store;
  static const bool wired = (registerEditor(), true);
  require(wired, "the editor");
  return store;
}

// A table of three records, its cursor on record 2, item 1.
const StoreFixture& freshTable() {
  const StoreFixture& store = folder();
  closeAll();
  store.table("t.txt", {2, 3, 2}, {"1 abc12", "2 \x81\x40x 7", "3 \x81"}, {2});
  require(openAndEnter(store.name("t.txt")), "opens");
  curRec = 2;
  curItem = 1;
  loadCache(curRec);
  takeDialogs();
  return store;
}

// Whatever was pasted: whole records, and those that the paste can't have reached as they were.
void checkTable(const StoreFixture& store, std::string_view before) {
  const std::string after = store.bytes("t.txt");
  require(after.size() % recLen == 0 && after.size() >= before.size(), "whole records");
  require(after.substr(0, recLen) == before.substr(0, recLen), "a record in front of the cursor");
  for (std::size_t end = recLen; end <= after.size(); end += recLen)
    require(after.substr(end - 2, 2) == "\r\n", "a record without its end");
  for (int number = 2; number <= 15; ++number) require(!isOpen(number), "a file left open");
}

void checkClipFile(std::string_view bytes) {
  const StoreFixture& store = freshTable();
  store.write("ZLKCLip", bytes);
  store.write("ZLKCLip.bak", "");
  const std::string before = store.bytes("t.txt");
  clipToClipboard();
  require(store.bytes("t.txt") == before, "a copy that writes");
  takeDialogs();
  pasteOver();
  checkTable(store, before);
  const bool broken = !takeDialogs().empty();
  pasteUndo();
  const std::string undone = store.bytes("t.txt");
  require(undone.starts_with(before), "the undo of a paste");
  require(undone.find_first_not_of(" \r\n", before.size()) == std::string::npos, "what the undo leaves");
  takeDialogs();
  pasteInsert();
  checkTable(store, undone);
  require(broken || store.bytes("t.txt").size() > undone.size(), "an insertion");
  takeDialogs();
}

void checkBackup(std::string_view bytes) {
  const StoreFixture& store = freshTable();
  store.write("ZLKCLip.bak", bytes);
  const std::string before = store.bytes("t.txt");
  pasteUndo();
  const std::string after = store.bytes("t.txt");
  require(after.size() % recLen == 0 && after.size() >= before.size(), "whole records");
  require(!isOpen(5), "the backup left open");
  takeDialogs();
}

void checkFormulaText(std::string_view bytes) {
  static const bool opened = (freshTable(), true);
  require(opened, "a table");
  const Text formula = fromSjis(bytes);
  Text message, work = formula;
  checkFormula(formula, message);
  if (!message.empty()) require(message.size() < 64 + formula.size(), "a message");
  try {
    evalFormula(work);
    require(work == formula || work == u"error", "the text of a formula");
  } catch (const Fault& fault) {
    require(!fault.text.empty(), "a fault without words");
  }
}

const std::vector<std::string> kPieces = {",", "\"", "\r\n", "\n",   " ",   "-",     "+",     "*",
                                          "^", "\\", "(",    ")",    "@",   "@2",    "E+",    ".",
                                          "0", "1",  "3",    "\x81", "255", "32768", "9E999", "2000000000"};
const bool added = addFuzzTarget({"clip", kPieces, checkClipFile}) && addFuzzTarget({"backup", kPieces, checkBackup}) &&
                   addFuzzTarget({"formula", kPieces, checkFormulaText});

}  // namespace
}  // namespace zelko::test
