#include "voice/dialogs.h"

#include <doctest/doctest.h>

#include "fixture.h"
#include "platform/forms/form.h"
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
