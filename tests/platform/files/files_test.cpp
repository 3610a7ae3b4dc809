#include "platform/files/files.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <random>

#include "fixture.h"
#include "platform/forms/shown.h"
#include "platform/text/sjis.h"

using namespace zelko;
namespace fs = std::filesystem;

namespace {

// A folder of its own, with the numbered files closed before and after.
struct Folder {
  Folder() {
    closeAll();
    std::string name = (fs::temp_directory_path() / "files_test_XXXXXX").string();
    REQUIRE(mkdtemp(name.data()) != nullptr);
    path = name + "/";
  }
  ~Folder() {
    closeAll();
    fs::remove_all(path);
  }

  Text operator/(const std::string& name) const { return fromUtf8(path + name); }
  Text with(const std::string& name, const std::string& bytes) const {
    writeBytes(path + name, bytes);
    return *this / name;
  }
  std::string bytes(const std::string& name) const { return readBytes(path + name); }

  std::string path;
};

std::string record(int number, std::int32_t which, std::size_t size = 8) {
  std::string bytes(size, '?');
  return getRecord(number, which, bytes.data()) == FileError::none ? bytes : "failed";
}

}  // namespace

TEST_CASE("records by number") {
  const Folder folder;
  REQUIRE(openRandom(1, folder / "-名 前.txt", 8) == FileError::none);
  CHECK(fileLength(1) == 0);
  CHECK(record(1, 1) == std::string(8, '\0'));
  CHECK(putRecord(1, 1, "record-1") == FileError::none);
  CHECK(putRecord(1, 3, "record-3") == FileError::none);
  CHECK(fileLength(1) == 24);
  CHECK(record(1, 2) == std::string(8, '\0'));
  CHECK(record(1, 3) == "record-3");
  CHECK(getRecord(1, 0, nullptr) == FileError::badNumber);
  CHECK(putRecord(2, 1, "record-1") == FileError::badNumber);
  CHECK(openRandom(1, folder / "other", 8) == FileError::alreadyOpen);
  CHECK(openRandom(16, folder / "other", 8) == FileError::badNumber);
  CHECK(openRandom(2, folder / "none/other", 8) == FileError::pathNotFound);
  CHECK(openRandom(2, folder / ".", 8) == FileError::pathAccess);
  CHECK(closeFile(1) == FileError::none);
  CHECK(fileLength(1) == 0);
  CHECK(closeFile(1) == FileError::none);
}

TEST_CASE("walks and jumps see every put, whatever the window holds") {
  const Folder folder;
  constexpr std::int32_t kRecords = 3000;  // more than one window
  constexpr std::size_t kSize = 64;
  std::string model(kRecords * kSize, 'a');
  REQUIRE(openRandom(1, folder.with("t", model), kSize) == FileError::none);
  REQUIRE(openRandom(2, folder / "t", kSize) == FileError::none);

  std::mt19937 random(7);
  const auto any = [&](std::int32_t below) {
    return static_cast<std::int32_t>(random() % static_cast<unsigned>(below));
  };
  std::int32_t at = 0;
  int differing = 0;
  for (int step = 0; step < 60000; ++step) {
    const auto count = static_cast<std::int32_t>(model.size() / kSize);
    at = any(200) == 0 ? any(count + 2) : (at + 1) % (count + 2);
    const std::size_t place = static_cast<std::size_t>(at) * kSize;
    std::string wanted = place < model.size() ? model.substr(place, kSize) : "";
    wanted.resize(kSize, '\0');
    differing += record(any(50) == 0 ? 2 : 1, at + 1, kSize) != wanted;

    if (any(4) != 0) continue;
    const std::int32_t target = std::clamp(at + any(9) - 4, 0, count);
    const std::string bytes(kSize, static_cast<char>('b' + any(20)));
    REQUIRE(putRecord(1 + any(2), target + 1, bytes.data()) == FileError::none);
    model.resize(std::max(model.size(), (static_cast<std::size_t>(target) + 1) * kSize));
    model.replace(static_cast<std::size_t>(target) * kSize, kSize, bytes);
  }
  CHECK(differing == 0);
  CHECK(folder.bytes("t") == model);
}

TEST_CASE("what another program writes is seen a moment later") {
  const Folder folder;
  REQUIRE(openRandom(1, folder.with("t", std::string(80, 'a')), 8) == FileError::none);
  CHECK(record(1, 1) == "aaaaaaaa");
  CHECK(record(1, 2) == "aaaaaaaa");
  folder.with("t", std::string(40, 'b'));
  CHECK(fileLength(1) == 40);
  const timespec moment{0, 150'000'000};
  nanosleep(&moment, nullptr);
  CHECK(record(1, 3) == "bbbbbbbb");
  CHECK(record(1, 6) == std::string(8, '\0'));
}

TEST_CASE("read-only files are read and never written") {
  const Folder folder;
  const Text path = folder.with("t", "record-1");
  CHECK_FALSE(isReadOnly(path));
  REQUIRE(openRandom(1, path, 8) == FileError::none);
  REQUIRE(setReadOnly(path, true) == FileError::none);  // while it is open
  CHECK(isReadOnly(path));
  CHECK(putRecord(1, 1, "new data") == FileError::pathAccess);
  closeAll();
  REQUIRE(openRandom(1, path, 8) == FileError::none);
  CHECK(record(1, 1) == "record-1");
  CHECK(putRecord(1, 2, "new data") == FileError::pathAccess);
  CHECK(openOutput(2, path) == FileError::pathAccess);
  CHECK(openAppend(2, path) == FileError::pathAccess);
  CHECK(deleteFile(path) == FileError::pathAccess);
  CHECK(copyFile(folder.with("u", "x"), path) == FileError::pathAccess);
  CHECK(folder.bytes("t") == "record-1");
  CHECK(copyFile(path, folder / "copy") == FileError::none);
  CHECK_FALSE(isReadOnly(folder / "copy"));
  chmod((folder.path + "t").c_str(), 0464);
  REQUIRE(setReadOnly(path, false) == FileError::none);
  CHECK(fs::status(folder.path + "t").permissions() == fs::perms(0664));
  CHECK(setReadOnly(folder / "none", true) == FileError::notFound);
}

TEST_CASE("field reads") {
  const Folder folder;
  const struct {
    std::string bytes;
    std::vector<Text> fields;
  } rows[] = {
      {"100  ',\x96\xBC\x95\xEB,,2\r\n1000 'a,L\r\n", {u"100  '", u"名簿", u"", u"2", u"1000 'a", u"L"}},
      {"a\nb\rc\r\nd", {u"a", u"b", u"c", u"d"}},
      {"a\r\r\nb\n\nc", {u"a", u"", u"b", u"", u"c"}},
      {"  a b , c\n", {u"a b ", u"c"}},
      {"\"a\",\"b\" , \"\",\"\n", {u"a", u"b", u"", u"\""}},
      {"\"a,b\"", {u"\"a", u"b\""}},
      {"a\"b\",\"c\"d", {u"a\"b\"", u"\"c\"d"}},
      {"a,\n,b", {u"a", u"", u"", u"b"}},
      {"a,", {u"a"}},
      {"a, ", {u"a", u""}},
      {"\x81,\x81\n\x81\x40"
       "a",
       {u"・", u"・", u"　a"}},
      {std::string("a\0b,c", 5), {Text(u"a\0b", 3), u"c"}},
      {"", {}},
  };
  for (const auto& row : rows) {
    CAPTURE(row.bytes);
    REQUIRE(openInput(2, folder.with("f", row.bytes)) == FileError::none);
    Text field;
    for (const Text& wanted : row.fields) {
      CHECK_FALSE(atEnd(2));
      CHECK(readField(2, field) == FileError::none);
      CHECK(field == wanted);
    }
    CHECK(atEnd(2));
    CHECK(readField(2, field) == FileError::pastEnd);
    CHECK(readLine(2, field) == FileError::pastEnd);
    closeFile(2);
  }
}

TEST_CASE("lines longer than any buffer, and a line end across two buffers") {
  const Folder folder;
  const std::string one(65535, 'a'), two(100000, 'b');
  REQUIRE(openInput(2, folder.with("f", one + "\r\n" + two + ",\"c\"\n\nlast")) == FileError::none);
  Text line;
  CHECK(readLine(2, line) == FileError::none);
  CHECK(line.size() == one.size());
  CHECK(readField(2, line) == FileError::none);
  CHECK(line.size() == two.size());
  for (const Text& wanted : {Text(u"\"c\""), Text(), Text(u"last")}) {
    CHECK(readLine(2, line) == FileError::none);
    CHECK(line == wanted);
  }
  CHECK(readLine(2, line) == FileError::pastEnd);
}

TEST_CASE("what cannot be read is told at the opening") {
  const Folder folder;
  CHECK(openInput(2, folder / "none") == FileError::notFound);
  CHECK(openInput(2, folder / ".") == FileError::pathAccess);
  CHECK(openInput(2, folder / std::string(256, 'n')) == FileError::badNumber);
  CHECK(openInput(2, Text(u"a\0b", 3)) == FileError::badNumber);
  CHECK(openInput(2, u"") == FileError::badNumber);
  REQUIRE(mkfifo((folder.path + "pipe").c_str(), 0600) == 0);
  CHECK(openInput(2, folder / "pipe") == FileError::device);
  CHECK_FALSE(isOpen(2));
}

TEST_CASE("text writes replace or lengthen a file") {
  const Folder folder;
  const Text path = folder.with("o", "an older and longer text");
  REQUIRE(openOutput(3, path) == FileError::none);
  CHECK(printLine(3, u"名簿é") == FileError::none);
  CHECK(print(3, u"x") == FileError::none);
  CHECK(fileLength(3) == 8);
  CHECK(folder.bytes("o") == "an older and longer text");  // one write at the end replaces it
  CHECK(closeFile(3) == FileError::none);
  CHECK(folder.bytes("o") == "\x96\xBC\x95\xEB?\r\nx");
  REQUIRE(openAppend(3, path) == FileError::none);
  CHECK(printLine(3, u"y") == FileError::none);
  CHECK(fileLength(3) == 11);
  CHECK(closeFile(3) == FileError::none);
  CHECK(folder.bytes("o") == "\x96\xBC\x95\xEB?\r\nxy\r\n");
  REQUIRE(openOutput(3, path) == FileError::none);
  CHECK(closeFile(3) == FileError::none);
  CHECK(folder.bytes("o").empty());

  REQUIRE(openOutput(3, path) == FileError::none);
  std::string wanted;
  for (int i = 0; i < 20000; ++i) {
    REQUIRE(printLine(3, u"ｱ123456") == FileError::none);
    wanted +=
        "\xB1"
        "123456\r\n";
  }
  CHECK(syncFile(3) == FileError::none);
  CHECK(folder.bytes("o") == wanted);
}

TEST_CASE("deleting, renaming, copying") {
  const Folder folder;
  const Text one = folder.with("one", "1"), two = folder.with("two", "2"), three = folder / "three";
  CHECK(renameFile(one, two) == FileError::alreadyExists);
  CHECK(renameFile(one, three) == FileError::none);
  CHECK(renameFile(one, three) == FileError::notFound);
  CHECK(copyFile(three, three) == FileError::permission);
  CHECK(copyFile(one, two) == FileError::notFound);
  CHECK(copyFile(folder / ".", two) == FileError::pathAccess);
  CHECK(folder.bytes("two") == "2");
  CHECK(copyFile(three, two) == FileError::none);
  CHECK(folder.bytes("two") == "1");
  CHECK(makeDirectory(folder / "sub") == FileError::none);
  CHECK(makeDirectory(folder / "sub") == FileError::alreadyExists);
  CHECK(makeDirectory(folder / "none/sub") == FileError::pathNotFound);
  CHECK(folderExists(folder / "sub"));
  CHECK_FALSE(fileExists(folder / "sub"));
  CHECK(deleteFile(folder / "sub") == FileError::pathAccess);
  CHECK(deleteFile(two) == FileError::none);
  CHECK(deleteFile(two) == FileError::notFound);
}

TEST_CASE("names of every kind are listed, found and opened") {
  const Folder folder;
  const std::string names[] = {"-x",     " blank ", "Kメイボ.TXT", "\x81\x40\xFF.txt", std::string(255, 'n'),
                               "kA.txt", "Ka.txt"};
  for (const std::string& name : names) folder.with(name, "x");
  REQUIRE(makeDirectory(folder / "Sub") == FileError::none);
  const auto entries = listFolder(folder / "");
  REQUIRE(entries.has_value());
  CHECK(entries->size() == std::size(names) + 1);
  CHECK(std::ranges::is_sorted(*entries, {}, &FolderEntry::name));
  for (const FolderEntry& entry : *entries) {
    CHECK(entry.folder == (entry.name == u"Sub"));
    if (entry.folder) continue;
    CHECK(openInput(2, folder / "" + entry.name) == FileError::none);
    closeFile(2);
  }
  CHECK(findIgnoringCase(folder / "KA.TXT") == folder / "Ka.txt");
  CHECK(findIgnoringCase(folder / "kA.txt") == folder / "kA.txt");
  CHECK(findIgnoringCase(folder / "kメイボ.txt") == folder / "Kメイボ.TXT");
  CHECK_FALSE(findIgnoringCase(folder / "sub").has_value());
  CHECK_FALSE(findIgnoringCase(folder / "none").has_value());
  CHECK_FALSE(findIgnoringCase(folder / "none/Ka.txt").has_value());
  CHECK_FALSE(listFolder(folder / "none").has_value());

  const fs::path before = fs::current_path();
  fs::current_path(folder.path);
  CHECK(findIgnoringCase(u"KA.TXT") == Text(u"Ka.txt"));
  CHECK(currentFolder().ends_with(u'/'));
  CHECK(fs::equivalent(toUtf8(currentFolder()), folder.path));
  fs::current_path(before);
}
