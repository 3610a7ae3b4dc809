// A user at the editor: a table made in the test, keys pressed, every sentence heard.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "editor/main/form1.h"
#include "session.h"

namespace zelko::test {

using Heard = std::vector<std::string>;  // "say …" and "beep"

class EditorFixture : public Session {
 public:
  // Key names, "type …", "commit …", "menu …" and "focus" with a control of the main form, a second before each. Gives
  // what was heard, in its order.
  Heard play(const std::vector<std::string>& actions);
  Heard heard();

  std::string record(int number) const { return toUtf8(Fixture::record(number)); }
  static constexpr std::string_view kTable = "t.txt";
};

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
