// The reader against a real speech service that is well, slow, frozen, dead or not there.
#include "speech/reader.h"

#include <doctest/doctest.h>

#include <chrono>
#include <cstdlib>
#include <string>
#include <thread>

#include "speech_server.h"

using namespace std::chrono_literals;
using namespace zelko;

namespace {

VoiceService::Settings on(const SpeechServer& server) {
  VoiceService::Settings settings;
  settings.socket = server.socket();
  settings.answerLimit = 400ms;
  return settings;
}

bool has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

double milliseconds(const auto& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

// Says it again until it is heard: the reader looks for a lost service at most so often.
bool heardAfterAWhile(Reader& reader, const SpeechServer& server, TextView sentence, const std::string& kana) {
  for (int i = 0; i < 20; ++i) {
    reader.say(sentence);
    reader.settled(3s);
    if (reader.serviceFound()) return has(server.spoken(kana), kana);
    std::this_thread::sleep_for(200ms);
  }
  return false;
}

bool skipped() {
  if (SpeechServer::installed()) return false;
  MESSAGE("skipped: speech-dispatcher is not installed");
  return true;
}

}  // namespace

TEST_CASE("the service says kana, at the speed and in the voice asked for") {
  if (skipped()) return;
  SpeechServer server;
  REQUIRE(server.start());
  Reader reader(on(server));
  reader.say(u"3月の記録");
  CHECK(has(server.spoken("サンガツ"), "man 0.00 0.00 サンガツノ キロク"));
  reader.say(u"＜速さ９＞速度調整9");
  CHECK(has(server.spoken("チョーセイ"), "man 100.00 0.00 ソクド チョーセイ キュウ"));
  reader.say(u"つぎ");
  CHECK(has(server.spoken("ツギ"), "man 100.00 0.00 ツギ"));  // a speed holds until the next tag
  reader.agent(u"\\PIT=60000\\高さ2");
  CHECK(has(server.spoken("タカサ"), "woman 0.00 75.00 タカサ ニ"));
  reader.say(u"もどる");
  CHECK(has(server.spoken("モドル"), "man 100.00 0.00 モドル"));
  CHECK(reader.serviceFound());
}

TEST_CASE("a user's name gives no orders to the service") {
  if (skipped()) return;
  SpeechServer server;
  REQUIRE(server.start());
  const char* before = std::getenv("USER");
  const std::string name = before == nullptr ? "" : before;
  setenv("USER", "taro\r\nQUIT\r\n hanako:", 1);
  Reader reader(on(server));
  reader.say(u"きこえる");
  CHECK(has(server.spoken("キコエル"), "キコエル"));
  setenv("USER", name.c_str(), 1);
}

TEST_CASE("of a burst the last sentence is said, and no call waits") {
  if (skipped()) return;
  SpeechServer server;
  REQUIRE(server.start());
  Reader reader(on(server));
  const double time = milliseconds([&] {
    for (int i = 0; i < 1000; ++i) reader.say(u"途中の文、とちゅうのぶん。");
    reader.say(u"最後");
  });
  CHECK(time < 400);
  CHECK(has(server.spoken("サイゴ"), "サイゴ"));
}

TEST_CASE("a service killed while in use is found again when it is back") {
  if (skipped()) return;
  SpeechServer server;
  REQUIRE(server.start());
  Reader reader(on(server));
  reader.say(u"まえ");
  CHECK(has(server.spoken("マエ"), "マエ"));
  server.kill();
  reader.say(u"きえる");
  CHECK(reader.settled(4s));
  CHECK_FALSE(reader.serviceFound());
  REQUIRE(server.start());
  CHECK(heardAfterAWhile(reader, server, u"あと", "アト"));
  CHECK_FALSE(has(server.spoken("アト"), "キエル"));  // never late
}

TEST_CASE("a frozen service stops neither the caller nor the end of the program") {
  if (skipped()) return;
  SpeechServer server;
  REQUIRE(server.start());
  {
    Reader reader(on(server));
    reader.say(u"まえ");
    CHECK(has(server.spoken("マエ"), "マエ"));
    server.freeze();
    CHECK(milliseconds([&] { reader.say(u"こおる"); }) < 200);
    CHECK(reader.settled(4s));
    CHECK_FALSE(reader.serviceFound());
    server.kill();
    REQUIRE(server.start());
    CHECK(heardAfterAWhile(reader, server, u"あと", "アト"));
    server.freeze();
  }
  auto reader = std::make_unique<Reader>(on(server));
  reader->say(u"おわり");
  std::this_thread::sleep_for(100ms);  // it waits for an answer now
  CHECK(milliseconds([&] { reader.reset(); }) < 100);
}

TEST_CASE("without a service nothing happens, quietly and at once") {
  VoiceService::Settings nowhere;
  nowhere.socket = "/nonexistent/socket";
  Reader reader(nowhere);
  CHECK(reader.serviceFound());
  CHECK(milliseconds([&] { reader.say(u"だれもいない"); }) < 200);
  CHECK(reader.settled(4s));
  CHECK_FALSE(reader.serviceFound());
  reader.stop();
  CHECK(reader.settled(1s));
}
