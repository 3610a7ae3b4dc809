// The line to the speech service of the desktop (speech-dispatcher), spoken in its own text protocol.
//
// The service can hang for good: without a sound device the first sentence is accepted and the next order never
// answered, and its client library waits in a read without any limit. Such a call can neither be ended nor joined, so
// the library is not used. The protocol is a few lines over a local socket; here every step of it has a time limit and
// ends at once when the owner wants to leave, so a plain thread can own the line and always be joined.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace zelko {

class VoiceService {
 public:
  struct Settings {
    std::string socket;  // path; empty: $SPEECHD_ADDRESS, else the user's own service
    bool mayStart =
        true;  // starts the user's own service where it does not run; a socket named otherwise is left alone
    std::chrono::milliseconds answerLimit{1000};
    std::chrono::milliseconds startLimit{5000};
  };
  struct Voice {
    bool character = false;          // the talking character's voice
    std::optional<int> rate, pitch;  // -100 to 100; none: as the user's settings have it
  };

  // `leaveFd`: readable as soon as every call should fail at once. Not owned.
  VoiceService(Settings settings, int leaveFd);
  ~VoiceService();
  VoiceService(const VoiceService&) = delete;
  VoiceService& operator=(const VoiceService&) = delete;

  bool connected() const { return socket_ >= 0; }
  // Each returns within its limits. On false the line is closed, and connect() is the way on.
  bool connect();
  // Stops what this program is saying and says the text (UTF-8).
  bool speak(const std::string& text, const Voice& voice);
  bool stop();
  void close();

 private:
  struct Answer {
    int code = 0;                    // 0: no answer
    std::vector<std::string> lines;  // of the listing before the last line, codes cut
  };
  enum class Ready { yes, late, leave };

  std::string socketPath() const;
  bool openSocket(const std::string& path);
  bool startService(const std::string& path);
  bool greet();
  void chooseModule();
  bool speaksJapanese();
  bool setVoice(const Voice& voice);
  bool set(const std::string& what, const std::string& value);
  std::string valueOf(const std::string& what);
  Answer order(const std::string& text);
  bool send(const std::string& bytes);
  bool readLine(std::string& line);
  Ready waitFor(int fd, short events);

  Settings settings_;
  int leaveFd_;
  int socket_ = -1;
  std::string received_;
  std::chrono::steady_clock::time_point limit_;
  std::string usersVoice_, usersRate_, usersPitch_;  // at the start of the line
  Voice voice_;                                      // now set
  bool askForModules_ = true;                        // false once a service broke over the question
};

}  // namespace zelko
