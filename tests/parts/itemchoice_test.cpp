#include "parts/grid/itemchoice.h"

#include <doctest/doctest.h>

#include "platform/forms/form.h"
#include "session.h"
#include "store/table/table.h"

using namespace zelko;

namespace {

template <int groups>
class Chooser : public Form {
 public:
  static constexpr TextView kName = groups == 1 ? u"One" : u"Two";
  Chooser() : Form(kName, u"項目") {
    items.fill();
    Narration voice(*this);
    items.narrate(voice);
  }
  Grid grid{*this, u"Grid1"};
  ItemChoice items{grid, groups};
};

using Marks = std::vector<std::int16_t>;

}  // namespace

TEST_CASE("items are marked with the keypad, moved over and let go") {
  test::Session user;
  itemCount = 3;
  for (int item = 1; item <= 3; ++item)
    itemName[static_cast<std::size_t>(item)] = Text(1, static_cast<char16_t>(u'＠' + item));
  const auto heardAt = [&](const char* key) {
    user.press(key);
    return user.said();
  };
  user.run([] { form<Chooser<1>>().show(); });
  user.play("wait 1");
  user.said();
  ItemChoice& one = form<Chooser<1>>().items;
  CHECK(heardAt("1") == "テンキーの1、またはctrl+1で指定します");
  CHECK(heardAt("Ctrl+1") == "指定");
  CHECK(heardAt("Down").starts_with("指定ﾅｼ､2:Ｂ。ｺｳﾓｸｼﾃｲｸﾞﾘｯﾄﾞ。矢印で"));
  CHECK(heardAt("Num1") == "指定");
  for (const char* elsewhere : {"Tab", "Alt+N", "Shift+PageDown", "Ctrl", "Up", "Down"}) user.press(elsewhere);
  CHECK(one.marked() == Marks{1, 2});
  user.said();
  CHECK(heardAt("Num1") == "指定解除");
  user.press("Up");
  user.said();
  CHECK(heardAt("Space") == "指定解除");
  CHECK(one.marked().empty());

  user.run([] { form<Chooser<2>>().show(); });
  user.play("wait 1");
  user.said();
  ItemChoice& two = form<Chooser<2>>().items;
  CHECK(heardAt("Num2") == "2　指定");
  CHECK(heardAt("Num1") == "1 指定");
  two.mayMarkSecond = [] { return false; };
  user.press("Down");
  user.press("Num2");
  CHECK(two.marked(1) == Marks{1});
  CHECK(two.marked(2).empty());
}
