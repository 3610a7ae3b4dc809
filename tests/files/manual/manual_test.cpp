#include "files/manual/manual.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "editor/main/menutable.h"
#include "files/manual/chapters.h"

namespace zelko {

TEST_CASE("the manual explains every entry of the menu, and none that is not there") {
  const auto rows = menuRows();
  std::size_t explained = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    CAPTURE(toUtf8(rows[i].name));
    if (rows[i].hidden) continue;
    const bool opens = i + 1 < rows.size() && rows[i + 1].level > rows[i].level;
    CHECK(menuExplanation(rows[i].name).empty() == opens);
    explained += opens ? 0 : 1;
  }
  const auto lines = manualMenuLines();
  CHECK(static_cast<std::size_t>(std::count(lines.begin(), lines.end(), '\n')) == explained);
}

TEST_CASE("the page of the manual: lists are closed before a heading, signs are written out, every key has its row") {
  using Kind = ManualBlock::Kind;
  const std::string page = manualHtml({{Kind::chapter, u"A & <B>"},
                                       {Kind::step, u"一"},
                                       {Kind::step, u"二"},
                                       {Kind::item, u"三"},
                                       {Kind::chapter, u"C"}});
  CHECK(page.find(
            "<h2 id=\"c1\">A &amp; &lt;B&gt;</h2>\n<ol>\n<li>一</li>\n<li>二</li>\n</ol>\n<ul>\n<li>三</li>\n</ul>\n"
            "<h2 id=\"c2\">C</h2>") != std::string::npos);

  const auto blocks = manualBlocks(u"no such folder/");
  const auto has = [&](TextView text) {
    return std::any_of(blocks.begin(), blocks.end(), [&](const ManualBlock& block) { return block.text == text; });
  };
  CHECK(has(u"Shift+Ctrl+K"));
  CHECK(has(u"Ctrl+PageDown"));
  CHECK(has(u"並べかえファイル作成(S)"));
}

}  // namespace zelko
