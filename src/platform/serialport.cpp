#include "platform/serialport.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <utility>

namespace zelko {

namespace {

struct Speed {
  std::int32_t baud;
  speed_t code;
};
// A rate that the system has no name for takes the next lower one: a modem finds the rate of its commands by itself.
constexpr Speed kSpeeds[] = {{110, B110},     {300, B300},     {600, B600},      {1200, B1200},
                             {2400, B2400},   {4800, B4800},   {9600, B9600},    {19200, B19200},
                             {38400, B38400}, {57600, B57600}, {115200, B115200}};

speed_t speedOf(std::int32_t baud) {
  speed_t code = B110;
  for (const Speed& speed : kSpeeds) {
    if (speed.baud <= baud) code = speed.code;
  }
  return code;
}

void setFlag(tcflag_t& flags, tcflag_t bits, bool on) { flags = on ? flags | bits : flags & ~bits; }

bool setUp(int device, const SerialPort::Line& line) {
  termios settings{};
  if (tcgetattr(device, &settings) != 0) return false;
  cfmakeraw(&settings);
  constexpr tcflag_t kSizes[] = {CS5, CS6, CS7, CS8};
  if (line.byteSize >= 5 && line.byteSize <= 8) {
    setFlag(settings.c_cflag, CSIZE, false);
    settings.c_cflag |= kSizes[line.byteSize - 5];
  }
  setFlag(settings.c_cflag, PARENB, line.parity != 0);
  setFlag(settings.c_cflag, PARODD, line.parity == 1 || line.parity == 3);
  setFlag(settings.c_cflag, CMSPAR, line.parity >= 3);
  setFlag(settings.c_cflag, CSTOPB, line.stopBits != 0);
  settings.c_cflag |= CLOCAL | CREAD;
  cfsetspeed(&settings, speedOf(line.baud));
  return tcsetattr(device, TCSANOW, &settings) == 0;
}

class Tty : public SerialPort {
 public:
  explicit Tty(int device) : device_(device) {}
  ~Tty() override {
    drain();
    ::close(device_);
  }
  Tty(const Tty&) = delete;
  Tty& operator=(const Tty&) = delete;

  bool configure(const Line& line) override { return setUp(device_, line); }

  std::optional<unsigned> modemLines() override {
    int on = 0;
    if (ioctl(device_, TIOCMGET, &on) != 0) return std::nullopt;
    return (on & TIOCM_CTS ? kCts : 0) | (on & TIOCM_DSR ? kDsr : 0) | (on & TIOCM_RNG ? kRing : 0) |
           (on & TIOCM_CD ? kRlsd : 0);
  }

  bool write(std::string_view bytes) override {
    while (!bytes.empty()) {
      const ssize_t written = ::write(device_, bytes.data(), bytes.size());
      if (written < 0 && errno == EINTR) continue;
      if (written <= 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
  }

  std::string read() override {
    std::string arrived;
    char buffer[256];
    for (ssize_t got; (got = ::read(device_, buffer, sizeof buffer)) > 0;)
      arrived.append(buffer, static_cast<std::size_t>(got));
    return arrived;
  }

 private:
  // What was written goes out first, but closing must not wait for a device where nobody reads.
  void drain() const {
    constexpr int kTries = 50, kMicroseconds = 10'000;
    for (int attempt = 0; attempt < kTries; ++attempt) {
      int waiting = 0;
      if (ioctl(device_, TIOCOUTQ, &waiting) != 0 || waiting == 0) return;
      usleep(kMicroseconds);
    }
    tcflush(device_, TCOFLUSH);
  }

  int device_;
};

}  // namespace

std::string serialDevice(int port, const std::string& chosen) {
  const std::string variable = "ZELKO_COM" + std::to_string(port);
  if (const char* named = std::getenv(variable.c_str()); named && *named) return named;
  if (!chosen.empty()) return chosen;
  return "/dev/ttyS" + std::to_string(port - 1);
}

std::unique_ptr<SerialPort> openSerialDevice(const std::string& device) {
  const int opened = ::open(device.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  if (opened < 0) return nullptr;
  if (ioctl(opened, TIOCEXCL) == 0 && setUp(opened, {})) return std::make_unique<Tty>(opened);
  ::close(opened);
  return nullptr;
}

}  // namespace zelko
