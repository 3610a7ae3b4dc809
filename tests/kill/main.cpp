// Plays the session of a case again and again, killed before each of its writes in turn: zelko_kill PROGRAM CASE.
// The table must then open, behind a yes where an interrupted rewrite asks for one, and every record and the item file
// must be one of those that stand there between two lines of the session.
#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kRecord = 256;
constexpr long kNever = -1;

std::string readBytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

struct Session {
  fs::path program, before, place;  // the place is made anew for each run
  std::string table;
  std::vector<std::string> lines;

  fs::path script() const { return place.string() + ".script"; }
  fs::path data() const { return place / table; }
  fs::path items() const { return place / ("K" + table); }

  void prepare(std::size_t linesPlayed) const {
    fs::remove_all(place);
    fs::copy(before, place, fs::copy_options::recursive);
    std::ofstream out(script(), std::ios::binary);
    for (std::size_t i = 0; i < linesPlayed; ++i) out << lines[i] << '\n';
  }
};

Session readSession(const fs::path& program, const fs::path& folder) {
  Session session{fs::absolute(program), fs::absolute(folder) / "before", {}, {}, {}};
  session.place = fs::temp_directory_path() / ("zelko-kill-" + std::to_string(::getpid()));
  std::istringstream script(readBytes(folder / "script.txt"));
  for (std::string line; std::getline(script, line);) {
    if (line.starts_with("# table ")) session.table = line.substr(8);
    session.lines.push_back(line);
  }
  return session;
}

// Changes what stands on disk, or the names there; the transcript on standard output does not count.
bool changesDisk(const __ptrace_syscall_info& call) {
  switch (call.entry.nr) {
    case SYS_write:
      return call.entry.args[0] > 2;
    case SYS_openat:
      return (call.entry.args[2] & O_CREAT) != 0;
    case SYS_pwrite64:
    case SYS_ftruncate:
    case SYS_renameat2:
    case SYS_renameat:
    case SYS_unlinkat:
#ifdef SYS_rename
    case SYS_rename:
    case SYS_unlink:
#endif
      return true;
    default:
      return false;
  }
}

[[noreturn]] void becomeProgram(const Session& session) {
  const int nowhere = ::open("/dev/null", O_RDWR);
  ::dup2(nowhere, 1);
  ::setenv("ASAN_OPTIONS", "detect_leaks=0", 1);  // it would trace the program too
  ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
  const std::string script = session.script(), place = session.place;
  ::execl(session.program.c_str(), session.program.c_str(), "--replay", script.c_str(), "--dir", place.c_str(), "--",
          session.table.c_str(), nullptr);
  std::_Exit(127);
}

// Runs the script, killed before write number `stopAt`. Gives the number of writes that were begun, or -1 where the
// program did not end as it should.
long play(const Session& session, long stopAt) {
  const pid_t child = ::fork();
  if (child == 0) becomeProgram(session);
  int status = 0;
  if (child < 0 || ::waitpid(child, &status, 0) != child || !WIFSTOPPED(status)) return -1;
  ::ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
  long writes = 0;
  int signal = 0;
  while (::ptrace(PTRACE_SYSCALL, child, nullptr, signal) == 0 && ::waitpid(child, &status, 0) == child) {
    if (WIFEXITED(status)) return WEXITSTATUS(status) == 0 ? writes : -1;
    if (!WIFSTOPPED(status)) return -1;
    signal = WSTOPSIG(status) == (SIGTRAP | 0x80) ? 0 : WSTOPSIG(status);
    __ptrace_syscall_info call{};
    if (signal != 0 || ::ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof call, &call) <= 0) continue;
    if (call.op != PTRACE_SYSCALL_INFO_ENTRY || !changesDisk(call) || writes++ != stopAt) continue;
    ::kill(child, SIGKILL);
    ::waitpid(child, &status, 0);
    return writes;
  }
  return -1;
}

struct Versions {
  std::vector<std::set<std::string>> records;
  std::set<std::string> itemFiles;

  void add(const Session& session) {
    const std::string data = readBytes(session.data());
    if (records.size() < data.size() / kRecord) records.resize(data.size() / kRecord);
    for (std::size_t at = 0; at + kRecord <= data.size(); at += kRecord)
      records[at / kRecord].insert(data.substr(at, kRecord));
    itemFiles.insert(readBytes(session.items()));
  }

  // What is not whole there; empty where all is.
  std::string broken(const Session& session) const {
    const std::string data = readBytes(session.data());
    if (data.size() % kRecord != 0 || data.size() / kRecord > records.size()) return "the data file's length is odd";
    for (std::size_t at = 0; at < data.size(); at += kRecord)
      if (!records[at / kRecord].contains(data.substr(at, kRecord)))
        return "record " + std::to_string(at / kRecord + 1) + " is not whole";
    return itemFiles.contains(readBytes(session.items())) ? "" : "the item file is not whole";
  }
};

Versions versionsBetweenLines(const Session& session) {
  Versions versions;
  for (std::size_t lines = 0; lines <= session.lines.size(); ++lines) {
    session.prepare(lines);
    play(session, kNever);
    versions.add(session);
  }
  return versions;
}

// False where a kill left something that is not whole, or a table that does not open.
bool survives(const Session& session, const Versions& versions, long stopAt) {
  session.prepare(session.lines.size());
  if (play(session, stopAt) < 0) {
    std::cerr << "the session does not run under the trace\n";
    return false;
  }
  std::ofstream(session.script()) << "key Y\nshow forms\nexpect forms frmSHEET Form1\n";
  const bool opens = play(session, kNever) >= 0;
  const std::string broken = opens ? versions.broken(session) : "the table does not open";
  if (!broken.empty()) std::cerr << "killed before write " << stopAt + 1 << ": " << broken << '\n';
  return broken.empty();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: zelko_kill PROGRAM CASE\n";
    return 2;
  }
  const Session session = readSession(argv[1], argv[2]);
  session.prepare(session.lines.size());
  const long writes = play(session, kNever);
  const Versions versions = versionsBetweenLines(session);
  int failures = writes < 10 ? 1 : 0;  // so few show nothing
  for (long stopAt = 0; stopAt < writes; ++stopAt) failures += survives(session, versions, stopAt) ? 0 : 1;
  std::cout << writes << " writes, killed before each: " << (failures == 0 ? "whole" : "broken") << '\n';
  fs::remove_all(session.place);
  fs::remove(session.script());
  return failures == 0 ? 0 : 1;
}
