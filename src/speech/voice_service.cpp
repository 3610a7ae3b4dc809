#include "speech/voice_service.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <utility>

extern "C" {
#include <sys/pidfd.h>  // brings no C linkage of its own
}

extern char** environ;

namespace zelko {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::string_view kUnixAddress = "unix_socket:";
constexpr std::size_t kLongestName = 64;
constexpr std::size_t kLongestLine = 4096;
constexpr std::size_t kMostLines = 20000;  // an engine with a voice for each language and manner lists 13,000
constexpr const char* kCharacterVoice = "FEMALE1";

std::string usersOwnSocket() {
  const char* runtime = std::getenv("XDG_RUNTIME_DIR");
  if (runtime != nullptr && *runtime != 0) return std::string(runtime) + "/speech-dispatcher/speechd.sock";
  const char* home = std::getenv("HOME");
  return std::string(home == nullptr ? "" : home) + "/.cache/speech-dispatcher/speechd.sock";
}

// The user's name in the words of an order: a blank, a colon or a control character would begin another.
std::string userName() {
  const char* user = std::getenv("USER");
  std::string name;
  for (const char* at = user == nullptr ? "" : user; *at != 0 && name.size() < kLongestName; ++at)
    name += std::isalnum(static_cast<unsigned char>(*at)) != 0 || *at == '-' || *at == '.' ? *at : '_';
  return name.empty() ? "user" : name;
}

// A line that is only a dot would end the message.
std::string asMessage(const std::string& text) {
  std::string message;
  if (text.starts_with('.')) message = ".";
  for (char byte : text) message += byte == '\n' || byte == '\r' || byte == '\0' ? ' ' : byte;
  return message + "\r\n.";
}

}  // namespace

VoiceService::VoiceService(Settings settings, int leaveFd) : settings_(std::move(settings)), leaveFd_(leaveFd) {}

VoiceService::~VoiceService() { close(); }

void VoiceService::close() {
  if (socket_ >= 0) ::close(socket_);
  socket_ = -1;
  received_.clear();
}

bool VoiceService::connect() {
  if (connected()) return true;
  const std::string path = socketPath();
  if (path.empty()) return false;
  if (!openSocket(path) && !(path == usersOwnSocket() && startService(path) && openSocket(path))) return false;
  limit_ = Clock::now() + settings_.answerLimit;
  if (greet()) return true;
  close();
  return false;
}

std::string VoiceService::socketPath() const {
  if (!settings_.socket.empty()) return settings_.socket;
  const char* address = std::getenv("SPEECHD_ADDRESS");
  if (address == nullptr || *address == 0) return usersOwnSocket();
  const std::string_view text = address;
  if (!text.starts_with(kUnixAddress)) return text == "unix_socket" ? usersOwnSocket() : std::string();
  return std::string(text.substr(kUnixAddress.size()));
}

bool VoiceService::openSocket(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof address.sun_path) return false;
  std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
  socket_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (socket_ < 0) return false;
  // A service that hangs leaves its backlog full: EAGAIN then, and no waiting.
  if (::connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) return true;
  close();
  return false;
}

// The service goes to the background by itself, and obeys the user's setting that forbids such a start.
bool VoiceService::startService(const std::string& path) {
  if (!settings_.mayStart) return false;
  limit_ = Clock::now() + settings_.startLimit;
  const char* arguments[] = {"speech-dispatcher", "--spawn", "--communication-method", "unix_socket", "--socket-path",
                             path.c_str(),        nullptr};
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  for (int fd = 0; fd < 3; ++fd) posix_spawn_file_actions_addopen(&files, fd, "/dev/null", O_RDWR, 0);
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
  pid_t child = 0;
  const int failed = posix_spawnp(&child, arguments[0], &files, &attributes, const_cast<char**>(arguments), environ);
  posix_spawn_file_actions_destroy(&files);
  posix_spawnattr_destroy(&attributes);
  if (failed != 0) return false;
  const int ended = pidfd_open(child, 0);
  const bool inTime = ended >= 0 && waitFor(ended, POLLIN) == Ready::yes;
  if (ended >= 0) ::close(ended);
  if (!inTime) kill(child, SIGKILL);
  int status = 0;
  waitpid(child, &status, 0);
  return inTime && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool VoiceService::greet() {
  const bool known = set("CLIENT_NAME", userName() + ":zelko:reader") && set("PRIORITY", "text");
  if (!known) return false;
  // Refused settings are no reason to stay silent.
  set("SSML_MODE", "off");
  set("PUNCTUATION", "none");
  set("LANGUAGE", "ja");
  if (std::exchange(askForModules_, false)) {
    chooseModule();
    askForModules_ = connected();
  }
  usersVoice_ = valueOf("VOICE_TYPE");
  usersRate_ = valueOf("RATE");
  usersPitch_ = valueOf("PITCH");
  voice_ = Voice();
  return connected();
}

// The user's own choice of an engine holds where it speaks Japanese. Else an engine with a Japanese voice is looked
// for; the stock engine knows kana, needs no question (its list of voices takes a second), and is the last resort.
void VoiceService::chooseModule() {
  const std::string current = valueOf("OUTPUT_MODULE");
  const auto isStock = [](const std::string& module) { return module.starts_with("espeak"); };
  if (current.empty() || (!isStock(current) && speaksJapanese())) return;
  const Answer modules = order("LIST OUTPUT_MODULES");
  for (const std::string& module : modules.lines) {
    if (module == current || isStock(module) || module == "dummy") continue;
    if (set("OUTPUT_MODULE", module) && speaksJapanese()) return;
  }
  const auto stock = std::find_if(modules.lines.begin(), modules.lines.end(), isStock);
  set("OUTPUT_MODULE", isStock(current) || stock == modules.lines.end() ? current : *stock);
}

// The engine now chosen.
bool VoiceService::speaksJapanese() {
  const Answer voices = order("LIST SYNTHESIS_VOICES");
  return std::any_of(voices.lines.begin(), voices.lines.end(), [](const std::string& voice) {
    return voice.find("\tja") != std::string::npos || voice.find("\tJA") != std::string::npos;
  });
}

bool VoiceService::speak(const std::string& text, const Voice& voice) {
  limit_ = Clock::now() + settings_.answerLimit;
  if (!setVoice(voice) || order("SPEAK").code != 230) return close(), false;
  if (order(asMessage(text)).code == 225) return true;
  close();
  return false;
}

bool VoiceService::stop() {
  limit_ = Clock::now() + settings_.answerLimit;
  return order("STOP SELF").code != 0;
}

bool VoiceService::setVoice(const Voice& voice) {
  const auto wanted = [](std::optional<int> value, const std::string& own) {
    return value ? std::to_string(*value) : own;
  };
  if (voice.character != voice_.character) set("VOICE_TYPE", voice.character ? kCharacterVoice : usersVoice_);
  if (voice.rate != voice_.rate) set("RATE", wanted(voice.rate, usersRate_));
  if (voice.pitch != voice_.pitch) set("PITCH", wanted(voice.pitch, usersPitch_));
  voice_ = voice;
  return connected();
}

bool VoiceService::set(const std::string& what, const std::string& value) {
  if (value.empty()) return false;
  const int code = order("SET SELF " + what + " " + value).code;
  return code >= 200 && code < 300;
}

std::string VoiceService::valueOf(const std::string& what) {
  const Answer answer = order("GET " + what);
  return answer.lines.empty() ? std::string() : answer.lines.front();
}

// Sends one order and takes its answer: lines "251-value", and a last one "251 OK". Closes the line on none.
VoiceService::Answer VoiceService::order(const std::string& text) {
  Answer answer;
  if (!connected() || !send(text + "\r\n")) return close(), answer;
  std::string line;
  while (answer.lines.size() < kMostLines && readLine(line)) {
    if (line.size() < 4) break;
    if (line[3] != '-') {
      answer.code = std::atoi(line.c_str());
      if (answer.code != 0) return answer;
      break;
    }
    answer.lines.push_back(line.substr(4));
  }
  close();
  return answer;
}

bool VoiceService::send(const std::string& bytes) {
  for (std::size_t sent = 0; sent < bytes.size();) {
    const ssize_t now = ::send(socket_, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
    if (now > 0)
      sent += static_cast<std::size_t>(now);
    else if (errno == EINTR)
      continue;
    else if (errno != EAGAIN || waitFor(socket_, POLLOUT) != Ready::yes)
      return false;
  }
  return true;
}

bool VoiceService::readLine(std::string& line) {
  while (true) {
    const std::size_t end = received_.find('\n');
    if (end != std::string::npos) {
      line = received_.substr(0, end > 0 && received_[end - 1] == '\r' ? end - 1 : end);
      received_.erase(0, end + 1);
      return true;
    }
    if (received_.size() > kLongestLine) return false;
    char buffer[4096];
    const ssize_t count = ::recv(socket_, buffer, sizeof buffer, 0);
    if (count > 0)
      received_.append(buffer, static_cast<std::size_t>(count));
    else if (count == 0 || (errno != EAGAIN && errno != EINTR) || waitFor(socket_, POLLIN) != Ready::yes)
      return false;
  }
}

VoiceService::Ready VoiceService::waitFor(int fd, short events) {
  pollfd waiting[] = {{leaveFd_, POLLIN, 0}, {fd, events, 0}};
  while (true) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(limit_ - Clock::now()).count();
    if (left <= 0) return Ready::late;
    const int ready = poll(waiting, 2, static_cast<int>(left));
    if (ready < 0 && errno == EINTR) continue;
    if (ready <= 0) return Ready::late;
    return waiting[0].revents != 0 ? Ready::leave : Ready::yes;
  }
}

}  // namespace zelko
