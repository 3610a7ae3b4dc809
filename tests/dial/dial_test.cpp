#include <doctest/doctest.h>

#include "dial/dwcomm.h"
#include "dial/phonenumber.h"
#include "fixture.h"
#include "platform/text/sjis.h"

namespace zelko {

namespace {

Text raised(const std::function<void()>& action) {
  try {
    action();
  } catch (const SerialError& error) {
    return error.source + u": " + error.message;
  }
  return u"nothing";
}

}  // namespace

TEST_CASE("numbers in cells and records") {
  CHECK(numberOfCell(u"自宅 ０３－1234-5678(夜)") == u"03-1234-5678");
  CHECK(numberOfCell(u"03-1234-5678/090-1") == u"03-1234-5678");
  CHECK(numberOfCell(u"０３ 12 34") == u"031234");
  CHECK(numberOfCell(u"-") == u"");
  CHECK(numberInText(u"〒123-4567 電話(03)1234-5678まで") == u"(03)1234-5678");
  CHECK(numberInText(u"12345678 0312345678901") == u"");
  CHECK(numberInText(u"x090-1234-5678-") == u"090-1234-5678");
  CHECK(spokenNumber(u"03-1") == u"0､3､の､1");
  CHECK(linkOf(u" +81(3)1234") == u"tel:+8131234");
  CHECK(linkOf(u"なし") == u"");
}

TEST_CASE("settings of a port refuse what no port has, and keep what they had") {
  dwDCB state;
  CHECK(raised([&] { state.BaudRate = 14401; }) == u"dwDCB: Invalid baud rate");
  CHECK(state.BaudRate == 2400);
  CHECK(raised([&] { state.fDtrControl = 3; }) == u"dwDCB: Invalid fDtrControl setting");
  CHECK(raised([&] { state.fRtsControl = -1; }) == u"dwDCB: Invalid fRtsControl setting");
  CHECK(raised([&] { state.ByteSize = 3; }) == u"dwDCB: Invalid Byte size setting");
  CHECK(raised([&] { state.Parity = 5; }) == u"dwDCB: Invalid Parity setting");
  CHECK(raised([&] { state.StopBits = 3; }) == u"dwDCB: Invalid Stop bits");
  CHECK(raised([&] { state.BaudRate = 256000; }) == u"nothing");
}

TEST_CASE("a port that is not open raises, whatever is asked of it") {
  dwComm port;
  CHECK(raised([&] { port.OpenComm(u"COM4"); }) == u"dwComm: Unable to open communications device");
  CHECK(raised([&] { port.CTS_ON(); }) == u"dwComm: Communication Device is not open");
  CHECK(raised([&] { port.PollRead(); }) == u"dwComm: Failure on Comm device read operation");
  CHECK(raised([&] { port.Poll(); }) == u"dwComm: Failure on Comm device event test operation");
  CHECK(raised([&] { port.CommOutput(u"ATZ\r"); }) == u"dwComm: Communication Device is not open");
}

}  // namespace zelko
