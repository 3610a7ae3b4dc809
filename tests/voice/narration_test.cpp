#include "voice/narration.h"

#include <doctest/doctest.h>

#include "fixture.h"
#include "voice/names.h"
#include "voice/talk.h"

using namespace zelko;

namespace {

class frmReading : public Form {
 public:
  static constexpr TextView kName = u"frmReading";

  frmReading() : Form(kName, u"読み方") {
    RichTextBox1.onChange = [this] { talkRichChange(RichTextBox1, previous_); };
    List1.setEntries({u"りんご", u"みかん"});
    Narration(*this)
        .explain(u"を　ためします")
        .box(RichTextBox1, u"文 ﾃｷｽﾄﾎﾞｯｸｽ")
        .say(Command1, [] { return Text(u"印字 ｺﾏﾝﾄﾞﾎﾞﾀﾝ"); })
        .check(Check1, u"。ﾁｪｯｸﾎﾞｯｸｽ")
        .list(List1, u"ﾘｽﾄﾎﾞｯｸｽ");
  }

  RichTextBox RichTextBox1{*this, u"RichTextBox1"};
  Button Command1{*this, u"Command1", u"実行"};
  CheckBox Check1{*this, u"Check1", u"見出し"};
  ListBox List1{*this, u"List1"};

 private:
  Text previous_;
};

class Reading : public Fixture {
 public:
  explicit Reading(std::int16_t level, TextView text = u"") {
    resetTalk();
    run([&] {
      frmReading& form = zelko::form<frmReading>();
      form.RichTextBox1.setText(text);
      form.show();
    });
    host().pass(1000);
    talkMode = level;
    said();
  }
  std::string saidAt(const std::string& key) {
    press(key);
    return said();
  }
  void caret(int start, int length = 0) {
    run([=] { form<frmReading>().RichTextBox1.setSelection(start, length); });
  }
};

}  // namespace

TEST_CASE("the caret in lines: line, column and ten characters to each side") {
  struct Row {
    TextView text;
    int caret;
    const char* heard;
  };
  const TextView lines = u"一二三\r\nあいうえおかきくけこさし\r\n終";
  const Row rows[] = {{u"", 0, "先頭ぎょう1もじめキャレット"},
                      {u"あいうえおかきくけこさ", 0, "先頭ぎょう1もじめキャレットあいうえおかきくけこ"},
                      {u"あいうえおかきくけこさ", 11, "12もじめいうえおかきくけこさキャレット"},
                      {lines, 0, "先頭ぎょう1もじめキャレット一二三\\n"},
                      {lines, 2, "1ぎょう3もじめ一二キャレット三\\n"},
                      {lines, 3, "1ぎょう4もじめ一二三キャレット\\n"},
                      {lines, 5, "2ぎょう1もじめキャレットあいうえおかきくけこ"},
                      {lines, 17, "2ぎょう13もじめうえおかきくけこさしキャレット\\n"},
                      {lines, 20, "最終ぎょう2もじめ終キャレット"}};
  for (const Row& row : rows) {
    CAPTURE(row.caret);
    Reading session(1, row.text);
    session.caret(row.caret);
    CHECK(session.saidAt("F12") == row.heard);
  }
}

TEST_CASE("a change of a long text is told by its run, one character by name") {
  Reading session(1, u"あ");
  session.caret(1);
  session.type(u"a");
  CHECK(session.said() == "ｴｰ");
  session.commit(u"カキ");
  CHECK(session.said() == "カキ");
  session.caret(0, 2);
  session.press("Delete");
  CHECK(session.said() == "あa 削除");
  session.press("Delete");
  CHECK(session.said() == "ｶﾀｶﾅ カ 削除");
}
