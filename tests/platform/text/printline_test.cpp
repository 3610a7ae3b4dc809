#include "platform/text/printline.h"

#include "platform/forms/shown.h"

using namespace zelko;

TEST_CASE("print lines join pieces and move to zones by columns") {
  CHECK(PrintLine().text(u"a").number(5).number(-0.5).text(u"b").line() == u"a 5 -.5 b");
  CHECK(PrintLine().number(0.1F).line() == u" .1 ");  // a single has a form of its own
  CHECK(PrintLine().number(std::int16_t{7}).number(2147483647).line() == u" 7  2147483647 ");
  CHECK(PrintLine().zone().text(u"x").line() == Text(14, u' ') + u"x");
  CHECK(PrintLine().text(u"abc").zone().text(u"x").line() == u"abc           x");
  CHECK(PrintLine().text(u"漢字ｶﾅ").zone().text(u"x").line() == u"漢字ｶﾅ        x");
  CHECK(PrintLine().text(u"12345678901234").zone().text(u"x").line() == u"12345678901234              x");
  CHECK(PrintLine().zone().zone().line() == Text(28, u' '));
  CHECK(quotedField(u"a\"b,") == u"\"a\"b,\"");
}
