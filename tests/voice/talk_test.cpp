#include "voice/talk.h"

#include <doctest/doctest.h>

#include "fixture.h"

using namespace zelko;

namespace {

// Speech at `level`, as a program that has just started in the session's folder.
void startSpeech(Fixture& session, std::int16_t level) {
  resetTalk();
  appDir = fromUtf8(session.folder().string()) + u"/";
  talkMode = level;
}

std::string kept() { return toUtf8(userClip); }

}  // namespace

TEST_CASE("the gate lets one sentence of a burst through, at midnight too") {
  Fixture session;
  startSpeech(session, 1);
  session.run([] { talkGated(u"一"); });
  session.host().pass(100);
  session.run([] {
    talkGated(u"二");
    talkNow(Text(u"三"));  // neither asks the gate nor moves it
  });
  session.host().pass(110);
  session.run([] { talkGated(u"四"); });
  CHECK(session.said() == "一 / 三 / 四");
  session.host().setClock({2026, 1, 5, 23, 59, 59});
  session.run([] { talkGated(u"五"); });
  session.host().pass(2000);
  session.run([] { talkGated(u"六"); });
  CHECK(session.said() == "五 / 六");
}

TEST_CASE("a wait of the gap ends past the gate at every time of day") {
  Fixture session;
  startSpeech(session, 1);
  for (int hour = 0; hour < 24; ++hour) {
    for (const double gap : {0.1, 0.2, 0.3, 1.0}) {
      CAPTURE(hour);
      CAPTURE(gap);
      session.host().setClock({2026, 1, 5, hour, 59, 3});
      talkGap = gap;
      talkLast = 0;
      session.run([] {
        talkGated(u"まえ");
        waitSec(talkGap);
        talkGated(u"あと");
      });
      CHECK(session.said() == "まえ / あと");
    }
  }
}

TEST_CASE("marks at the front and blanks at the end of a sentence") {
  struct Row {
    TextView sentence;
    const char* heard;
  };
  const Row rows[] = {
      {u"。､あ", "あ"}, {u"､。あ", "。あ"}, {u"。。あ", "。あ"}, {u"、あ", "、あ"}, {u"あ　  ", "あ　"}, {u"   ", ""},
  };
  Fixture session;
  startSpeech(session, 1);
  for (const Row& row : rows) {
    session.run([&] { talkNow(Text(row.sentence)); });
    CHECK(session.said() == row.heard);
    CHECK(toUtf8(session.host().clipboard()) == row.heard);
  }
}

TEST_CASE("the user's clipboard is kept, the closing mark of a sentence is not") {
  Fixture session;
  startSpeech(session, 1);
  session.host().copyElsewhere(u"わたしの文");
  session.run([] { talkNow(Text(u"あ")); });
  CHECK(kept() == "わたしの文");
  session.host().copyElsewhere(u"よみ。｡.");
  session.run([] { talkNow(Text(u"い")); });
  CHECK(kept() == "わたしの文");
  session.host().clipboardFails = true;
  session.run([] { talkNow(Text(u"う")); });
  session.host().clipboardFails = false;
  CHECK(session.said() == "あ / い");
  session.run([] { talkAgain(); });
  CHECK(session.said() == "い");
  userClip = u"わたしの文";
  session.host().copyElsewhere(u"よみ。｡.");
  session.run([] { talkEnd(); });
  CHECK(session.said() == "Zelko ｼｭｳﾘｮｳ");
  CHECK(session.host().clipboard() == u"わたしの文");
}

TEST_CASE("a silent run says, waits and composes nothing") {
  Fixture session;
  startSpeech(session, 0);
  const float before = session.host().dayTimer();
  session.run([] {
    talkNow(Text(u"あ"));
    talkGated(u"あ");
    talkCtl(u"ﾃｷｽﾄﾎﾞｯｸｽ");
    talkB(u"あ");
    talkAgain();
    talkEnd();
  });
  CHECK(session.events().empty());
  CHECK(session.host().dayTimer() == before);
  CHECK(composedSentences == 0);
}

TEST_CASE("speech settings survive a run, and a rotten file is no setting") {
  Fixture session;
  startSpeech(session, 2);
  agentOn = 1;
  session.run([] { writeSpeechSettings(); });
  CHECK(readBytes(session.folder() / "zlkTalk") == " 2 \r\n");
  CHECK(readBytes(session.folder() / "mAgent") == " 1 \r\n");
  const std::pair<const char*, int> rows[] = {{" 1 \r\n", 1}, {"2", 2},     {" 3 \r\n", 0},      {"-1", 0},
                                              {"", 0},        {"1e999", 0}, {"\xff\x00,,\"", 0}, {"99999999", 0}};
  for (const auto& [bytes, level] : rows) {
    CAPTURE(bytes);
    writeBytes(session.folder() / "zlkTalk", bytes);
    talkMode = 1;
    session.run([] { readSpeechSettings(); });
    CHECK(talkMode == level);
    CHECK(agentOn == 1);
  }
  std::filesystem::remove(session.folder() / "mAgent");
  session.run([] { readSpeechSettings(); });
  CHECK(agentOn == 0);
}
