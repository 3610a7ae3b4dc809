#include "walker/walk.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>

#include "app/wiring.h"
#include "platform/fault.h"
#include "platform/forms/form.h"
#include "platform/headless/player.h"
#include "walker/rules.h"
#include "walker/tables.h"

namespace zelko::test {
namespace {

namespace fs = std::filesystem;

// Generous under the sanitizers too: what takes longer hangs.
constexpr unsigned kLongestSeconds = 120;

struct Found {
  std::string what;
};

// The program's side: plays on, and writes each line down before it is played.
class Walker {
 public:
  Walker(const WalkPlan& plan, int log)
      : plan_(plan),
        log_(log),
        random_(plan.seed * 2 + 1),
        rules_(plan.manner),
        host_([this](std::string_view line) { rules_.heard(line); }),
        player_(host_, {}, u"Form1") {
    host_.nextAction = [this] { return step(); };
    setHost(&host_);
  }

  void run() {
    if (std::string find = played(); !find.empty()) return write('F', find);
    // Whatever an opening asks, it is answered with the default button.
    host_.nextAction = [this] { return answers_++ < 20 && (pressKey(), true); };
    screen().reset();
    try {
      if (std::string find = Rules::brokenAtTheEnd(); !find.empty()) write('F', find);
    } catch (const HeadlessHost::InputEnded&) {
      write('F', "opening a table asks without end");
    }
  }

 private:
  void write(char kind, const std::string& text) const {
    const std::string line = kind + text + "\n";
    if (::write(log_, line.data(), line.size()) < 0) std::abort();
  }
  void pressKey() { player_.play(parseScript("key Enter").front()); }

  std::string played() {
    try {
      startProgram(u"t.txt");
      host_.idle();
      while (step()) {
      }
    } catch (const HeadlessHost::InputEnded&) {
    } catch (const ProgramEnd&) {
    } catch (const Found& found) {
      return found.what;
    } catch (const Fault& fault) {
      return "fault " + toUtf8(fault.text);
    } catch (const std::exception& error) {
      return std::string("fault ") + error.what();
    }
    return "";
  }

  bool step() {
    if (std::string rule = rules_.broken(); !rule.empty()) throw Found{rule};
    const std::size_t end = plan_.lines ? plan_.lines->size() : static_cast<std::size_t>(plan_.actions);
    if (done_ == end) return false;
    const std::string line = plan_.lines ? (*plan_.lines)[done_] : nextLine(plan_.manner, random_);
    ++done_;
    write('L', line);
    rules_.before(line);
    try {
      for (const Action& action : parseScript(line)) player_.play(action);
    } catch (const ScriptError&) {
    }
    return true;
  }

  const WalkPlan& plan_;
  int log_;
  std::mt19937 random_;
  Rules rules_;
  HeadlessHost host_;
  Player player_;
  std::size_t done_ = 0;
  int answers_ = 0;
};

// The walker goes into every folder and deletes what it likes: only what stands in its own may be there.
void shutInto(const fs::path& folder) {
  const bool may = ::geteuid() == 0 || ::unshare(CLONE_NEWUSER) == 0;
  if (!may || ::chroot(folder.c_str()) != 0 || ::chdir("/home") != 0)
    throw std::runtime_error("the walker needs a folder that it can't leave (chroot)");
  ::setenv("HOME", "/home", 1);
}

[[noreturn]] void walkInChild(const WalkPlan& plan, const fs::path& folder, int log) {
  const int errors = ::open((folder / "errors").c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
  ::dup2(errors, STDERR_FILENO);
  std::mt19937 random(plan.seed);
  makeRandomTables(folder / "home", random);
  try {
    shutInto(folder);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    ::_exit(2);
  }
  ::alarm(kLongestSeconds);
  Walker(plan, log).run();
  ::_exit(0);
}

std::string howItEnded(int status, const fs::path& folder) {
  if (status == 0) return "";
  std::ifstream errors(folder / "errors");
  std::string line, first;
  while (std::getline(errors, line)) {
    if (first.empty()) first = line;
    if (line.find("runtime error") != std::string::npos || line.starts_with("SUMMARY")) return "crash " + line;
  }
  if (WIFSIGNALED(status)) return "crash signal " + std::to_string(WTERMSIG(status));
  return "crash " + first;
}

void readLog(int log, Walked& walked) {
  std::FILE* in = ::fdopen(log, "r");
  char* line = nullptr;
  std::size_t room = 0;
  for (ssize_t size; (size = ::getline(&line, &room, in)) > 0;) {
    const std::string text(line + 1, static_cast<std::size_t>(size) - 2);
    if (*line == 'L') walked.lines.push_back(text);
    if (*line == 'F') walked.find = text;
  }
  std::free(line);
  std::fclose(in);
}

}  // namespace

Walked walk(const WalkPlan& plan) {
  const fs::path above = fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path();
  std::string folder = (above / "zelko-walk-XXXXXX").string();
  int ends[2];
  if (!::mkdtemp(folder.data()) || ::pipe(ends) != 0) throw std::runtime_error("no folder to walk in");
  fs::create_directory(fs::path(folder) / "home");
  const pid_t child = ::fork();
  if (child == 0) {
    ::close(ends[0]);
    walkInChild(plan, folder, ends[1]);
  }
  ::close(ends[1]);
  Walked walked;
  readLog(ends[0], walked);
  int status = 0;
  ::waitpid(child, &status, 0);
  if (walked.find.empty()) walked.find = howItEnded(status, folder);
  std::error_code ignored;
  fs::remove_all(folder, ignored);
  return walked;
}

WalkPlan minimised(WalkPlan plan, const Walked& walked) {
  std::vector<std::string> lines = walked.lines;
  for (std::size_t piece = std::max<std::size_t>(lines.size() / 2, 1);;) {
    bool shorter = false;
    for (std::size_t from = 0; from < lines.size();) {
      std::vector<std::string> fewer = lines;
      const auto begin = fewer.begin() + static_cast<std::ptrdiff_t>(from);
      fewer.erase(begin, begin + static_cast<std::ptrdiff_t>(std::min(piece, lines.size() - from)));
      plan.lines = fewer;
      if (walk(plan).find == walked.find) {
        lines = fewer;
        shorter = true;
      } else {
        from += piece;
      }
    }
    if (piece == 1 && !shorter) break;
    piece = std::max<std::size_t>(piece / 2, 1);
  }
  plan.lines = lines;
  return plan;
}

}  // namespace zelko::test
