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

bool setUp(int device) {
  termios settings{};
  if (tcgetattr(device, &settings) != 0) return false;
  cfmakeraw(&settings);
  settings.c_cflag |= CLOCAL | CREAD;
  cfsetspeed(&settings, B9600);
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

std::string serialDevice(int port) {
  const std::string variable = "ZELKO_COM" + std::to_string(port);
  if (const char* named = std::getenv(variable.c_str()); named && *named) return named;
  return "/dev/ttyS" + std::to_string(port - 1);
}

std::unique_ptr<SerialPort> openSerialDevice(const std::string& device) {
  const int opened = ::open(device.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  if (opened < 0) return nullptr;
  if (setUp(opened)) return std::make_unique<Tty>(opened);
  ::close(opened);
  return nullptr;
}

}  // namespace zelko
