#include "speech_server.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <thread>

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

constexpr const char* kProgram = "/usr/bin/speech-dispatcher";

std::string contents(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

}  // namespace

bool SpeechServer::installed() { return fs::exists(kProgram); }

SpeechServer::SpeechServer() {
  std::string name = (fs::temp_directory_path() / "zelko-speech-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) std::abort();
  folder_ = name;
  fs::create_directories(folder_ / "conf" / "modules");
  std::ofstream(folder_ / "conf" / "speechd.conf") << "LogLevel 0\nLogDir \"" << name << "\"\n"
                                                   << "AudioOutputMethod \"libao\"\n"
                                                   << "AddModule \"file\" \"sd_generic\" \"file.conf\"\n"
                                                   << "DefaultModule file\n";
  std::ofstream(folder_ / "conf" / "modules" / "file.conf")
      << "GenericExecuteSynth \"echo \\'$VOICE $RATE $PITCH $DATA\\' >> " << name << "/spoken\"\n"
      << "GenericLanguage \"ja\" \"ja\" \"utf-8\"\n"
      << "AddVoice \"ja\" \"male1\" \"man\"\nAddVoice \"ja\" \"female1\" \"woman\"\n"
      << "GenericRateAdd 0\nGenericRateMultiply 100\nGenericPitchAdd 0\nGenericPitchMultiply 100\n";
}

SpeechServer::~SpeechServer() {
  kill();
  fs::remove_all(folder_);
}

bool SpeechServer::start() {
  const std::string conf = (folder_ / "conf").string(), path = socket(), pid = (folder_ / "pid").string();
  fs::remove(path);
  group_ = fork();
  if (group_ == 0) {
    setpgid(0, 0);
    const int null = open("/dev/null", O_RDWR);
    for (int fd = 0; fd < 3; ++fd) dup2(null, fd);
    execl(kProgram, kProgram, "-s", "-C", conf.c_str(), "-c", "unix_socket", "-S", path.c_str(), "-P", pid.c_str(),
          "-t", "0", nullptr);
    _exit(127);
  }
  setpgid(group_, group_);
  for (int i = 0; i < 500 && !fs::exists(path); ++i) std::this_thread::sleep_for(10ms);
  return fs::exists(path);
}

void SpeechServer::kill() {
  if (group_ == 0) return;
  ::kill(-group_, SIGKILL);
  waitpid(group_, nullptr, 0);
  group_ = 0;
}

void SpeechServer::freeze() { ::kill(-group_, SIGSTOP); }

std::string SpeechServer::spoken(const std::string& part) const {
  for (int i = 0; i < 400; ++i) {
    const std::string text = contents(folder_ / "spoken");
    if (text.find(part) != std::string::npos) return text;
    std::this_thread::sleep_for(10ms);
  }
  return contents(folder_ / "spoken");
}
