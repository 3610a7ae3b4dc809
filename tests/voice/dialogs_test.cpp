#include "voice/dialogs.h"

#include <doctest/doctest.h>

#include "fixture.h"
#include "platform/form.h"
#include "voice/okforms.h"
#include "voice/progress.h"
#include "voice/progressform.h"
#include "voice/talk.h"

using namespace zelko;

namespace {

void speakDataOnly() {
  resetTalk();
  talkMode = 1;
}

}  // namespace

TEST_CASE("a message is heard behind the sentence that led to it, and Enter or Esc leaves it") {
  for (const char* key : {"Enter", "Esc"}) {
    Fixture session;
    speakDataOnly();
    session.run([] {
      talkGated(u"まえ");
      showOK(u"本文", u"題");
      talkNow(Text(u"あと"));
    });
    CHECK(session.said() == "まえ / 本文。OKならCRを叩いてください。");
    session.press("Shift+Ctrl+A");
    CHECK(session.said() == "題本文。okならCRを叩いてください。");
    session.press(key);
    CHECK(session.said() == "あと");
    CHECK(session.events().back() == "say あと");
  }
}

TEST_CASE("OK or cancel") {
  const std::pair<const char*, bool> rows[] = {{"key Enter", true}, {"key Esc", false}, {"key Tab\nkey Enter", false}};
  for (const auto& [keys, answer] : rows) {
    Fixture session;
    speakDataOnly();
    bool answered = !answer;
    session.run([&] { answered = askOK(u"消しますか", u"題"); });
    CHECK(session.said() == "消しますか。OKならCRを､キャンセルならESCを叩いてください。");
    session.play(keys);
    CHECK(answered == answer);
    CHECK(screen().activeForm() == nullptr);
  }
}

TEST_CASE("yes, no or cancel by letter, arrow, Enter and Esc") {
  const std::pair<const char*, int> rows[] = {{"key Y", kYes},
                                              {"type y", kYes},
                                              {"type N", kNo},
                                              {"key Enter", kYes},
                                              {"key Right\nkey Enter", kNo},
                                              {"key Tab\nkey Tab\ntype y", kYes},
                                              {"key Up\nkey Enter", kCancel},
                                              {"key Right\nkey Esc", kCancel}};
  for (const auto& [keys, answer] : rows) {
    CAPTURE(keys);
    Fixture session;
    speakDataOnly();
    session.run([] {
      talkGated(u"まえ");
      askYesNo(u"終わりますか", u"");
    });
    CHECK(session.said() == "まえ / 終わりますか?[はい](Y)､ｺﾏﾝﾄﾞぼたん");
    CHECK(screen().activeForm()->caption() == u"はい／いいえ／ｷｬﾝｾﾙ");
    session.play(keys);
    CHECK(msgAnswer == answer);
    CHECK(screen().activeForm() == nullptr);
  }
}

TEST_CASE("a question says each button and repeats what was missed") {
  Fixture session;
  speakDataOnly();
  session.run([] { askYesNo(u"文", u"題"); });
  session.said();
  session.press("Shift+PageDown");
  CHECK(session.said() == "はい(Y)文はい(Y)ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  session.press("Right");
  CHECK(session.said() == "文?[いいえ](N)､ｺﾏﾝﾄﾞぼたん");
  session.press("Right");
  CHECK(session.said() == "文?[ｷｬﾝｾﾙ](esc)､ｺﾏﾝﾄﾞぼたん");
  session.press("Shift+Ctrl+A");
  CHECK(session.said() == "題文。。はい､わＹ、いいえ、わＮ、ｷｬﾝｾﾙ　わ　esc　を　叩きます");
}

TEST_CASE("an entry says its preset and prompt, echoes what is typed, and gives it back") {
  Fixture session;
  speakDataOnly();
  Text answer = u"?";
  const auto ask = [&](TextView preset) {
    return [&answer, preset = Text(preset)] { answer = talkAsk(u"何秒ですか", u"題", preset); };
  };
  session.run(ask(u"0.2"));
  CHECK(session.said() == "0.2。何秒ですか");
  session.press("Shift+Ctrl+S");
  CHECK(session.said() == "0.2。何秒ですか");
  session.press("Enter");
  CHECK(answer == u"0.2");

  session.run(ask(u""));
  CHECK(session.said() == "何秒ですか");
  session.type(u"Ab");
  CHECK(session.said() == "ｵｵﾓｼﾞｴｰ / ﾋﾞｰ");
  session.commit(u"東京");
  CHECK(session.said() == "東京");
  session.press("Backspace");
  CHECK(session.said() == "京 削除");
  session.press("Enter");
  CHECK(answer == u"Ab東");

  session.run(ask(u"0.2"));
  session.type(u"5");
  session.press("Tab");
  session.press("Enter");
  CHECK(answer == u"5");

  session.run(ask(u"0.2"));
  session.press("Esc");
  CHECK(answer.empty());
}

TEST_CASE("a result is heard at once and as often as it is asked for") {
  Fixture session;
  speakDataOnly();
  session.run([] { showRepeat(u"平均わ 3"); });
  CHECK(session.said().starts_with("平均わ 3。計算が終了しています。"));
  session.press("Enter");
  CHECK(session.said() == "平均わ 3");
  session.press("Esc");
  CHECK(screen().activeForm() == nullptr);
}

TEST_CASE("long work tells what it does, can be stopped, and leaves the gate to its last sentence") {
  Fixture session;
  speakDataOnly();
  const auto work = [](std::int64_t& steps) {
    return [&steps] {
      Progress progress(u"記録移動中", 200);
      for (steps = 1; steps <= 200 && progress.step(steps); ++steps) {
      }
      talkGated(u"おわり");
    };
  };
  std::int64_t steps = 0;
  session.run(work(steps));
  CHECK(session.said() == "記録移動中。中止(ESC)ｺﾏﾝﾄﾞぼたん / おわり");
  CHECK(steps == 201);
  CHECK(loadedForm<frmDOE>() == nullptr);

  session.play("later 45 key Shift+PageDown\nlater 60 key Esc");
  session.run(work(steps));
  CHECK(steps == 60);
  CHECK(session.said().find("､記録移動中､20%完了") != std::string::npos);
}
