#include "platform/serialport.h"

#include <doctest/doctest.h>
#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>

namespace zelko {

TEST_CASE("a serial port passes every byte, and an end where nobody reads holds nobody up") {
  const int modem = posix_openpt(O_RDWR | O_NOCTTY);
  REQUIRE(modem >= 0);
  REQUIRE(grantpt(modem) == 0);
  REQUIRE(unlockpt(modem) == 0);
  auto port = openSerialDevice(ptsname(modem));
  REQUIRE(port);

  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  CHECK(port->write(all));
  std::string arrived(512, '\0');
  arrived.resize(static_cast<std::size_t>(::read(modem, arrived.data(), arrived.size())));
  CHECK(arrived == all);
  CHECK(port->read().empty());
  CHECK(::write(modem, "OK\r\n", 4) == 4);
  CHECK(port->read() == "OK\r\n");

  CHECK_FALSE(port->write(std::string(1'000'000, 'x')));
  const auto before = std::chrono::steady_clock::now();
  port.reset();
  CHECK(std::chrono::steady_clock::now() - before < std::chrono::seconds(2));
  ::close(modem);
}

TEST_CASE("the device of a port") {
  CHECK(serialDevice(2) == "/dev/ttyS1");
  setenv("ZELKO_COM2", "/dev/modem", 1);
  CHECK(serialDevice(2) == "/dev/modem");
  unsetenv("ZELKO_COM2");
  CHECK(openSerialDevice("/no/such/device") == nullptr);
  CHECK(openSerialDevice("/dev/null") == nullptr);
}

}  // namespace zelko
