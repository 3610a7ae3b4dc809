// Any bytes as the settings of dialling: what is read can be stored, and read again the same.
#include "dial/phonenumber.h"
#include "dial/telsettings.h"
#include "fuzz/target.h"
#include "platform/text/sjis.h"
#include "store/store_fixture.h"
#include "voice/talk.h"

namespace zelko::test {

namespace {

void checkDialling(std::string_view bytes) {
  static const StoreFixture store;
  appDir = store.name("");
  store.write("zlkTEL", bytes);
  store.write("zlkPORT", bytes);
  const TelSettings settings = readTelSettings();
  const PortDevices devices = readPortDevices();
  require(settings.port >= 1 && settings.port <= 3, "a port");
  require(writeTelSettings(settings) && writePortDevices(devices), "stored");
  require(readTelSettings() == settings && readPortDevices() == devices, "read again the same");
  const Text text = fromSjis(bytes);
  for (const Text& number : {numberOfCell(text), numberInText(text)})
    require(number.empty() == linkOf(number).empty(), "a number has digits");
}

const bool added =
    addFuzzTarget({"dialling",
                   {"TONE", "PULSE", "\r\n", "COM1", "COM3", "/dev/ttyS0", "\x1A", "0", "-", "(", ")", "\x81"},
                   checkDialling});

}  // namespace
}  // namespace zelko::test
