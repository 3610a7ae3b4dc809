// The line editor of the model.
#include <doctest/doctest.h>

#include "fixture.h"
#include "platform/forms/sampleform.h"

using namespace zelko;

namespace {

class Editor : public Form {
 public:
  static constexpr TextView kName = u"frmEditor";
  Editor() : Form(kName, u"Editor") {}
  TextBox line{*this, u"line"};
  RichTextBox lines{*this, u"lines"};
};

// The text with "|" where the caret or selection begins and, with a selection, "]" where it ends.
std::string state(const TextBox& box) {
  Text text = box.text();
  if (box.selLength() > 0) text.insert(static_cast<std::size_t>(box.selStart() + box.selLength()), u"]");
  text.insert(static_cast<std::size_t>(box.selStart()), u"|");
  return oneLine(text);
}

}  // namespace

TEST_CASE("editing keys") {
  struct Row {
    const char* box;
    const char16_t* text;
    int caret;
    const char* script;
    const char* after;
  };
  const Row rows[] = {
      {"line", u"ab", 0, "key Right\ntype xy", "axy|b"},
      {"line", u"ab", 2, "key Backspace\nkey Backspace\nkey Backspace", "|"},
      {"line", u"a𠮷b", 3, "key Backspace", "a|b"},
      {"line", u"a𠮷b", 1, "key Right\nkey Delete", "a𠮷|"},
      {"line", u"abcd", 2, "key Shift+Left\nkey Shift+Left\nkey Shift+Right", "a|b]cd"},
      {"line", u"abcd", 1, "key Shift+End\ntype x", "ax|"},
      {"line", u"abcd", 1, "key Shift+Right\nkey Left", "a|bcd"},
      {"line", u"ab cd", 0, "key Ctrl+Right\nkey Shift+Ctrl+Right", "ab |cd]"},
      {"line", u"abc", 0, "key Ctrl+A\nkey Ctrl+X\nkey Ctrl+V\nkey Shift+Insert", "abcabc|"},
      {"line", u"", 0, "clipboard a\\nb\nkey Ctrl+V", "a|"},
      {"line", u"ab", 1, "commit 東京", "a東京|b"},
      {"line", u"ab", 1, "type 𠮷\nkey Up", "a𠮷|b"},
      {"lines", u"", 0, "type a\\nb", "a\\nb|"},
      {"lines", u"a\r\nb", 1, "key Right\nkey Backspace", "a|b"},
      {"lines", u"a\r\nb", 1, "key Delete", "a|b"},
      {"lines", u"abc\r\nd\r\nefg", 2, "key Down\ntype x\nkey Down\nkey Home", "abc\\ndx\\n|efg"},
      {"lines", u"abc\r\nd", 6, "key Up\nkey Shift+Ctrl+Home", "|a]bc\\nd"},
      {"lines", u"", 0, "clipboard a\\nb\nkey Ctrl+V\nkey Ctrl+Home\nkey End", "a|\\nb"},
  };
  for (const Row& row : rows) {
    CAPTURE(row.script);
    Fixture f;
    f.run([] { form<Editor>().show(); });
    TextBox& box = static_cast<TextBox&>(*form<Editor>().find(fromUtf8(row.box)));
    f.run([&] {
      box.setFocus();
      box.setText(row.text);
      box.setSelection(row.caret, 0);
    });
    f.play(row.script);
    CHECK(state(box) == row.after);
  }
}

TEST_CASE("Change is heard once for each real change, whoever makes it") {
  Fixture f;
  f.run([] { form<Editor>().show(); });
  TextBox& box = form<Editor>().line;
  int changes = 0;
  box.onChange = [&] { ++changes; };
  f.run([&] { box.setText(u"abc"); });
  f.run([&] { box.setText(u"abc"); });
  CHECK(changes == 1);
  CHECK(box.selStart() == 0);
  f.run([&] { box.userEdited(u"abcd", 4, 0); });
  f.run([&] { box.userEdited(u"abcd", 2, 1); });
  CHECK(changes == 2);
  CHECK(state(box) == "ab|c]d");
  f.commit(u"東京都");
  CHECK(changes == 3);
  SUBCASE("a change inside a change") {
    box.onChange = [&] {
      ++changes;
      if (box.text().size() > 3) box.setText(left(box.text(), 3));
    };
    f.press("End");
    f.type(u"x");
    CHECK(box.text() == u"ab東");
    CHECK(changes == 5);
  }
  SUBCASE("a box that is read only") {
    box.readOnly = true;
    f.play("type x\nkey Delete\nkey Backspace\ncommit y\nkey Ctrl+A\nkey Ctrl+C\nkey Ctrl+X\nkey Ctrl+V");
    CHECK(changes == 3);
    CHECK(f.host().clipboard() == u"ab東京都d");
  }
}
