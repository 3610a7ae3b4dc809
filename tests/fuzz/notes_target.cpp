// Any bytes as one of the small files that the program finds in a folder: the note of a swap, a setting, and what a
// backup tells of its table.
#include "editor/clip/clipfile.h"
#include "fuzz/target.h"
#include "platform/files/files.h"
#include "store/rewrite/recovery.h"
#include "store/store_fixture.h"
#include "store/store_host.h"
#include "voice/talk.h"

namespace zelko::test {
namespace {

const StoreFixture& freshFolder() {
  static const StoreFixture store;
  closeAll();
  store.write("t.txt", record("one"));
  store.write("Kt.txt", itemFileText({3, 3}));
  return store;
}

// "{NAME}" in a note stands for the mark that the file has, which chance does not find.
std::string withMarks(const StoreFixture& store, std::string note) {
  for (const std::string name : {"t.txt", "KWORK.QQQ", "WORK.QQQ"}) {
    const std::string sign = "{" + name + "}";
    for (std::size_t at = note.find(sign); at != std::string::npos; at = note.find(sign))
      note.replace(at, sign.size(), toUtf8(markText(*markOfFile(store.name(name)))));
  }
  return note;
}

// A folder that was prepared: whatever the note says, no table is changed without work files that it names.
void checkNote(std::string_view bytes) {
  const StoreFixture& store = freshFolder();
  store.write("WORK.QQQ", record("work"));
  store.write("KWORK.QQQ", itemFileText({6}));
  store.write("SWAP.QQQ", withMarks(store, std::string(bytes)));
  resetRecovery();
  offerRecovery(store.name("t.txt"));
  require(store.bytes("t.txt") == record("one"), "the table");
  const std::string items = store.bytes("Kt.txt");
  require(items == itemFileText({3, 3}) || items == itemFileText({6}), "the item file");
  for (int number = 1; number <= 15; ++number) require(!isOpen(number), "a file left open");
  takeDialogs();
}

void checkSetting(std::string_view bytes) {
  const StoreFixture& store = freshFolder();
  store.write("zlkTalk", bytes);
  store.write("mAgent", bytes);
  readSpeechSettings();
  require(talkMode >= 0 && talkMode <= 2 && (agentOn == 0 || agentOn == 1), "a setting that there is none of");
}

void checkBackupOf(std::string_view bytes) {
  const StoreFixture& store = freshFolder();
  require(store.open("t.txt"), "opens");
  store.write("ZLKCLip.bak", "1\r\n\"old\"\r\n");
  store.write("ZLKCLip.for", bytes);
  require(backupFits() == BackupFits::elsewhere, "a backup of another table");
  takeDialogs();
}

const bool added =
    addFuzzTarget({"note",
                   {"zelko swap 1\n", "t.txt\n", "Kt.txt\n", "\n", "/", "../", "{t.txt}", "{KWORK.QQQ}", "-1 ", " ",
                    "18446744073709551616", "\xE6\x9D\xB1"},
                   checkNote}) &&
    addFuzzTarget({"setting", {"0", "1", "2", "-", " ", "\r\n", "1e400", "&H", "\"", ","}, checkSetting}) &&
    addFuzzTarget({"backupof", {"zelko backup 1\n", "\n", "t.txt", " ", "9E999", "1", "."}, checkBackupOf});

}  // namespace
}  // namespace zelko::test
