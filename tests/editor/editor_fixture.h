// A user at the editor: a table made in the test, keys pressed, every sentence heard.
#pragma once

#include <doctest/doctest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "editor/form1.h"
#include "platform/text.h"

namespace zelko::test {

using Heard = std::vector<std::string>;  // "say …" and "beep", UTF-8

struct Item {
  std::string name;
  int width;
  char alignment = 'L';
};

class EditorFixture {
 public:
  EditorFixture();
  ~EditorFixture();
  EditorFixture(const EditorFixture&) = delete;
  EditorFixture& operator=(const EditorFixture&) = delete;

  // Makes the table in the test's folder and enters the editor at the given speech level; records hold their cells one
  // behind the other, in UTF-8, each padded to its item. What is heard meanwhile is forgotten.
  void open(const std::vector<Item>& items, const std::vector<std::vector<std::string>>& records, int level = 2);

  // Key names, "type …" and "commit …"; a second passes before each. A dialog that opens takes the actions behind
  // the one that opened it. What was heard, in its order.
  Heard play(const std::vector<std::string>& actions);
  // What was heard since the last look.
  Heard heard();
  bool ended() const;  // the program has ended itself

  int records() const;
  // Bytes of a record on disk without its trailing blanks, in UTF-8.
  std::string record(int number) const;
  std::string file(std::string_view name) const;
  std::string path(std::string_view name) const { return (folder_ / name).string(); }
  static constexpr std::string_view kTable = "t.txt";

 private:
  std::filesystem::path folder_;
};

Form1& mainForm();
std::string utf8(TextView text);

}  // namespace zelko::test

template <>
struct doctest::StringMaker<zelko::test::Heard> {
  static String convert(const zelko::test::Heard& lines) {
    std::string all;
    for (const std::string& line : lines) all += "\n    " + line;
    return all.c_str();
  }
};
