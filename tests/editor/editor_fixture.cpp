#include "editor/editor_fixture.h"

namespace zelko::test {
namespace {

std::string scriptLine(const std::string& action) {
  if (action.starts_with("focus ")) return "focus Form1." + action.substr(6);
  bool isVerb = action.starts_with("type ") || action.starts_with("commit ") || action.starts_with("menu ");
  return isVerb ? action : "key " + action;
}

}  // namespace

Heard EditorFixture::play(const std::vector<std::string>& actions) {
  for (const std::string& action : actions) Fixture::play(scriptLine(action));
  return heard();
}

Heard EditorFixture::heard() {
  Heard lines = events();
  std::erase_if(lines, [](const std::string& line) { return line != "beep" && !line.starts_with("say "); });
  return lines;
}

std::string utf8(TextView text) { return toUtf8(text); }

}  // namespace zelko::test
