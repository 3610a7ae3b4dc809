// A speech service of the test's own: on a socket of its own, with an engine that writes what it says to a file.
#pragma once

#include <filesystem>
#include <string>

class SpeechServer {
 public:
  SpeechServer();   // prepared, not running
  ~SpeechServer();  // ended, with all its processes and files
  SpeechServer(const SpeechServer&) = delete;
  SpeechServer& operator=(const SpeechServer&) = delete;

  static bool installed();
  bool start();
  void kill();  // as in a crash
  void freeze();
  std::string socket() const { return (folder_ / "socket").string(); }
  // All that was said so far, a line "VOICE RATE PITCH TEXT" each; waits until `part` is in it, at most 4 seconds.
  std::string spoken(const std::string& part) const;

 private:
  std::filesystem::path folder_;
  int group_ = 0;
};
