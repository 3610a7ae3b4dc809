#include "parts/reading/tablewalk.h"

#include <doctest/doctest.h>

#include "fixture.h"
#include "parts/reading/helpform.h"
#include "voice/talk.h"

using namespace zelko;

TEST_CASE("the tables of a report are walked cell by cell, with the names of row and column") {
  Fixture user;
  resetTalk();
  talkMode = 2;
  const Text text =
      u"相関係数\r\n   No.    X(01)    X(02)\r\nX(01)     1.000\r\n         71.971\r\nX(02)    -0.611    1.000\r\n\r\n"
      u"    |   1|   2|   計\r\n----+----+----+-----\r\n   1|   5|  12|  17\r\n計  |   5|  12|  17\r\n\r\n"
      u"  ﾃﾞｰﾀ種類        頻度  ﾊﾟｰｾﾝﾄ(* =2.5%)\r\n----------------\r\n"
      u"[A b       ]         4       57.14%        +++++\r\nn= 3   r= .62\r\n";
  user.run([&] { showReading({u"表", text, true}); });
  user.play("wait 1");
  user.said();
  const auto heardAt = [&](const char* key) {
    user.press(key);
    return user.said();
  };
  struct Step {
    const char *key, *heard;
  };
  for (const Step& step : std::initializer_list<Step>{{"Alt+Down", "X(01)とX(01)､1.000"},
                                                      {"Alt+Down", "X(01)下段とX(01)､71.971"},
                                                      {"Alt+Down", "X(02)とX(01)､-0.611"},
                                                      {"Alt+Right", "X(02)とX(02)､1.000"},
                                                      {"Alt+Right", "X(02)とX(02)､1.000"},
                                                      {"Alt+Up", "X(01)下段とX(01)､71.971"},
                                                      {"Alt+Down", "X(02)とX(02)､1.000"},
                                                      {"Alt+Down", "次の表､1と計､17"},
                                                      {"Alt+Left", "1と2､12"},
                                                      {"Alt+Down", "計と2､12"},
                                                      {"Alt+Down", "次の表､A bと頻度､4"},
                                                      {"Alt+Right", "A bとﾊﾟｰｾﾝﾄ(* =2.5%)､57.14%"}}) {
    CAPTURE(step.key);
    CHECK(heardAt(step.key) == step.heard);
  }
}
