// Copy, the two pastes and the undo, as the user meets them: sentences, stops, foreign files, and every byte.
#include "editor/clip/clip.h"

#include <functional>

#include "editor/clip/clip_session.h"
#include "fulldisk.h"
#include "platform/files/files.h"
#include "platform/text/sjis.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "voice/talk.h"

using namespace zelko;
using namespace zelko::test;

namespace {

using Rows = std::vector<std::string>;

const Rows kRows = {"1  太郎    12abcde", "2  花子     7f", "3  次郎   100"};
const std::string kClip = "2\n1\n2\n2\n1\n2\n\"太郎  \"\n\"  12\"\n\"花子  \"\n\"   7\"\n";
const std::string kBroken = "ｸﾘｯﾌﾟﾌｧｲﾙのデータが途中で終わっているか、読み取れません。";

// So many counted lines of a header, and the lines behind it.
std::string clip(int records, int items, const std::string& cells) {
  std::string text = std::to_string(records) + "\n";
  for (int number = 1; number <= records; ++number) text += std::to_string(number) + "\n";
  text += std::to_string(items) + "\n";
  for (int number = 1; number <= items; ++number) text += std::to_string(number) + "\n";
  return text + cells;
}

}  // namespace

TEST_CASE_FIXTURE(ClipSession, "where a clip lands") {
  struct Row {
    const char* story;
    std::string clip;
    std::int32_t record;
    std::int16_t item;
    Rows after;
  };
  const std::vector<Row> cases = {
      {"past the last item", kClip, 1, 3, {"1  太郎    12太郎", "2  花子     7花子", kRows[2]}},
      {"cut by the target's side",
       clip(1, 2, "\"1234567\"\n\"1234567\"\n"),
       1,
       1,
       {"1  1234564567abcde", kRows[1], kRows[2]}},
      {"a comma slips", clip(1, 3, "\"1,2\"\n\"x\"\n\"y\"\n"), 1, 1, {"1  1        2x", kRows[1], kRows[2]}},
      {"quotes in a cell stay", clip(1, 1, "\"\"a\"b\"\n"), 1, 1, {"1  \"a\"b    12abcde", kRows[1], kRows[2]}},
      {"lines without quotes", clip(1, 2, "  a\n9  \n"), 1, 1, {"1  a        9abcde", kRows[1], kRows[2]}},
  };
  for (const Row& row : cases) {
    CAPTURE(row.story);
    const std::string before = readBytes(data());
    writeClip(row.clip);
    cursorTo(row.record, row.item);
    press("Ctrl+O");
    CHECK(table() == row.after);
    CHECK(curRec == row.record);
    CHECK(file("ZLKCLip.bak").starts_with(std::to_string(row.record) + "\n\""));
    replaceData(before);
  }
}

TEST_CASE_FIXTURE(ClipSession, "an undo gives the bytes back, also those that no conversion would") {
  std::string bytes = readBytes(data());
  bytes.replace(3, 6, "\xED\x40\xFF\"\x81 ");  // a double code, a byte without a character, a quote, half a character
  bytes.replace(100, 3, "tip");                // behind the last item
  replaceData(bytes);
  writeClip(kClip);
  cursorTo(1, 2);
  press("Ctrl+O");
  CHECK(readBytes(data()) != bytes);
  CHECK(readBytes(folder() / "ZLKCLip.bak") ==
        "1\r\n\"" + bytes.substr(0, 18) + "\"\r\n\"" + bytes.substr(256, 18) + "\"\r\n");
  std::string undone = bytes;
  undone.replace(100, 3, "   ");
  for (int twice = 0; twice < 2; ++twice) {
    press("Ctrl+I");
    CHECK(holds(said(), "いちばん最近の貼り付け操作を取り消し,以前の状態に戻します"));
    press("Y");
    CHECK(readBytes(data()) == undone);
  }
  press("Ctrl+O");
  const std::string pasted = readBytes(data());
  press("Ctrl+I");
  press("N");
  CHECK(readBytes(data()) == pasted);
}

TEST_CASE_FIXTURE(ClipSession, "a copy that is stopped leaves the old clip file and the clipboard") {
  writeClip(kClip);
  const std::string old = file("ZLKCLip");
  select(2, 1, 3, 0, 3);
  bool copied = true;
  play("later 2 key Esc");
  run([&] { copied = clipCopy(); });
  CHECK_FALSE(copied);
  CHECK(rangeKind == 0);
  CHECK_FALSE(holds(show("clipboard"), "太郎"));
  CHECK(file("ZLKCLip") == old);
}

TEST_CASE_FIXTURE(ClipSession, "clip files by other hands") {
  struct Row {
    const char* story;
    std::string clip;
    Rows after;
  };
  const std::vector<Row> cases = {
      {"empty", "", kRows},
      {"no number", "abc\n", kRows},
      {"negative", "-3\n1\n1\n\"x\"\n", kRows},
      {"beyond every number", "9E999\n1\n1\n1\n\"x\"\n", kRows},
      {"a count without its lines", "2000000000\n1\n1\n1\n\"x\"\n", kRows},
      {"an item count without its lines", "1\n1\n2000000000\n1\n", kRows},
      {"no cells", clip(2, 1, ""), kRows},
      {"cells run out in the second record",
       clip(2, 2, "\"a\"\n\"5\"\n\"b\"\n"),
       {"1  a        5abcde", kRows[1], kRows[2]}},
  };
  const std::string before = readBytes(data());
  for (const Row& row : cases) {
    CAPTURE(row.story);
    writeClip(row.clip);
    cursorTo(1, 1);
    press("Ctrl+O");
    CHECK(holds(said(), kBroken));
    press("Enter");
    CHECK(table() == row.after);
    press("Ctrl+I");
    press("Y");
    press("Enter");
    CHECK(readBytes(data()) == before);
    play("menu mnuCC");
    CHECK(holds(said(), kBroken));
    press("Enter");
    CHECK_FALSE(ended());
  }
  // Nothing is inserted for records that the file only claims to hold.
  writeClip("2000000000\n1\n1\n1\n\"x\"\n");
  press("Ctrl+Y");
  CHECK(holds(said(), kBroken));
  press("Enter");
  CHECK(readBytes(data()) == before);
}

TEST_CASE_FIXTURE(ClipSession, "an undo writes into no other table and no other state, and says so") {
  const auto pasted = [&] {
    writeClip(kClip);
    cursorTo(1, 1);
    press("Ctrl+O");
    return readBytes(data());
  };
  const auto refused = [&] {
    const std::string bytes = readBytes(data());
    press("Ctrl+I");
    said();
    press("Y");
    CHECK(holds(said(), "最後の貼り付けは、今のこの表には合いません。取り消しはしません"));
    press("Enter");
    CHECK(readBytes(data()) == bytes);
  };
  struct Row {
    const char* story;
    std::function<void()> between;
  };
  const std::vector<Row> rows = {
      {"a record inserted above", [&] { menu("mnuINSREC1"); }},
      {"the table replaced",
       [&] {
         run([&] { closeFile(1); });
         const std::string bytes = readBytes(data());
         std::filesystem::rename(data(), folder() / "old");
         writeBytes(data(), bytes);
         run([] { REQUIRE(reopenData()); });
       }},
      {"shorter than before", [&] { replaceData(readBytes(data()).substr(0, 512)); }},
      {"a backup by other hands", [&] { writeBytes(folder() / "ZLKCLip.bak", "2\r\n\"zz\"\r\n"); }},
      {"cut off", [&] { writeBytes(folder() / "ZLKCLip.bak", readBytes(folder() / "ZLKCLip.bak").substr(0, 9)); }},
      {"nothing told", [&] { std::filesystem::remove(folder() / "ZLKCLip.for"); }},
  };
  for (const Row& row : rows) {
    CAPTURE(row.story);
    pasted();
    row.between();
    refused();
  }
}

TEST_CASE_FIXTURE(ClipSession, "what is missing, locked or full is told, and the table stays") {
  const std::string before = readBytes(data());
  const auto told = [&](const std::string& key, const std::string& sentence) {
    CAPTURE(key);
    said();
    press(key);
    CHECK(holds(said(), sentence));
    press("Enter");
    CHECK(readBytes(data()) == before);
    CHECK(show("focus") == "focus Form1.txtinputbox");
  };
  told("Ctrl+O", "張り付けるべきｸﾘｯﾌﾟﾌｧｲﾙがありません。OK");
  told("Ctrl+Y",
       "張り付けるべきｸﾘｯﾌﾟﾌｧｲﾙがありません。矢印またはshift+矢印でClip範囲を指定した上で本ﾒﾆｭｰを選択して下さい.");

  writeClip(kClip);
  std::filesystem::create_directory(folder() / "CLIPBAK.QQQ");
  told("Ctrl+O", "書き込み時にエラーが出ました。");
  std::filesystem::remove(folder() / "CLIPBAK.QQQ");

  setReadOnly(fromUtf8(data().string()), true);
  for (const char* key : {"Ctrl+O", "Ctrl+Y", "Ctrl+I"}) told(key, "書き込み禁止ﾌｧｲﾙです。");
  setReadOnly(fromUtf8(data().string()), false);

  std::filesystem::remove(folder() / "ZLKCLip");
  std::filesystem::create_directory(folder() / "ZLKCLip");
  select(1, 1, 1, 1, 1);
  bool copied = true;
  run([&] { copied = clipCopy(); });
  CHECK(holds(said(), "書き込み時にエラーが出ました。"));
  press("Enter");
  CHECK_FALSE(copied);
}
