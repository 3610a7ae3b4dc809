// Plays every job of the table again and again, each time killed in front of another of its calls that change a file,
// or with that call failing: zelko_faults PROGRAM PRELOAD [--every N] [JOB...]. With --every only each Nth call.
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

#include "faults/jobs.h"
#include "store/rewrite/file_calls.h"

namespace fs = std::filesystem;
using namespace zelko::test;

namespace {

constexpr std::size_t kRecord = 256;
constexpr const char* kFaults[] = {"kill", "fail 28", "fail 5", "fail 13", "short", "from 28"};  // ENOSPC, EIO, EACCES

using Files = std::map<std::string, std::string>;

struct Run {
  int status = 0;  // of the exit, or -1
  int calls = 0, reads = 0;
  std::string transcript;
  Files files;
};

std::string readBytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class Stage {
 public:
  Stage(const char* program, const char* preload) : program_(fs::absolute(program)), preload_(fs::absolute(preload)) {
    const fs::path above = fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path();
    place_ = above / ("zelko-faults-" + std::to_string(getpid()));
  }
  ~Stage() {
    std::error_code error;
    for (const char* end : {"", ".script", ".out", ".calls"}) fs::remove_all(place_.string() + end, error);
  }

  void prepare() const {
    fs::remove_all(place_);
    fs::create_directory(place_);
    for (const auto& [name, bytes] : filesBefore()) std::ofstream(place_ / name, std::ios::binary) << bytes;
  }

  // The fault as the preloaded calls take it; empty: none.
  Run play(const std::string& script, const std::string& fault, const char* opened = "t.txt") const {
    std::ofstream(place_.string() + ".script") << script << '\n';
    const pid_t child = fork();
    if (child == 0) become(fault, opened);
    Run run;
    int status = 0;
    waitpid(child, &status, 0);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    run.transcript = readBytes(place_.string() + ".out");
    std::istringstream(readBytes(place_.string() + ".calls")) >> run.calls >> run.reads;
    for (const auto& entry : fs::directory_iterator(place_))
      run.files[entry.path().filename().string()] = entry.is_directory() ? "" : readBytes(entry.path());
    return run;
  }

 private:
  [[noreturn]] void become(const std::string& fault, const char* opened) const {
    if (freopen((place_.string() + ".out").c_str(), "w", stdout) == nullptr) std::_Exit(126);
    setenv("LD_PRELOAD", preload_.c_str(), 1);
    setenv("ASAN_OPTIONS", "verify_asan_link_order=0:detect_leaks=0", 1);
    setenv("ZELKO_FAULT", fault.c_str(), 1);
    setenv("ZELKO_CALLS", (place_.string() + ".calls").c_str(), 1);
    const std::string script = place_.string() + ".script";
    execl(program_.c_str(), program_.c_str(), "--replay", script.c_str(), "--dir", place_.c_str(),
          *opened == '\0' ? nullptr : opened, nullptr);
    std::_Exit(127);
  }

  fs::path program_, preload_, place_;
};

std::vector<std::string> recordsOf(const std::string& data) {
  std::vector<std::string> records;
  for (std::size_t at = 0; at < data.size(); at += kRecord) records.push_back(data.substr(at, kRecord));
  return records;
}

// What an undisturbed run leaves behind each of its lines.
class Reference {
 public:
  Reference(const Stage& stage, const Job& job) : job_(job) {
    stage.prepare();
    before_ = stage.play("", "").files;
    add(before_);
    addStates(stage, job.also);
    last_ = addStates(stage, job.script);
  }
  // Calls before the line "# job": a failure on the way there leads the rest of the script elsewhere.
  int callsOnTheWay() const { return way_.calls; }
  int readsOnTheWay() const { return way_.reads; }
  const Run& last() const { return last_; }
  bool worked() const { return last_.status == 0 && (states_.size() > 1 || !sameEnd(before_)); }

  // What is wrong with these files; empty where all holds.
  std::string broken(const Files& files) const {
    for (const auto& [name, bytes] : files)
      if (!names_.contains(name)) return "a stray file " + name;
    for (const char* name : {"t.txt", "Kt.txt", "u.txt", "Ku.txt", "ZLKCLip"})
      if (!files.contains(name)) return std::string(name) + " is gone";
    if (const std::string table = brokenTable(files.at("t.txt"), files.at("Kt.txt")); !table.empty()) return table;
    if (!clips_.contains(files.at("ZLKCLip"))) return "the clip file is neither the old one nor the new one";
    return brokenOutput(files);
  }

  // Whether a run came to the same end as an undisturbed one; the settings do not count.
  bool sameEnd(const Files& files) const {
    const auto same = [&](const std::string& name) {
      const auto one = files.find(name), other = last_.files.find(name);
      if (one == files.end() || other == last_.files.end()) return one == files.end() && other == last_.files.end();
      return one->second == other->second;
    };
    const char* const names[] = {"t.txt", "Kt.txt", "ZLKCLip", job_.output};
    return std::ranges::all_of(names, [&](const char* name) { return *name == '\0' || same(name); });
  }

 private:
  // Of a script: what stands there behind each of its lines. Gives the run of the whole.
  Run addStates(const Stage& stage, const char* script) {
    std::istringstream lines(script);
    std::string played;
    Run run;
    for (std::string line; std::getline(lines, line);) {
      played += line + "\n";
      stage.prepare();
      run = stage.play(played, "none 0", job_.opened);
      if (line == "# job") way_ = run;
      add(run.files);
    }
    return run;
  }

  void add(const Files& files) {
    for (const auto& [name, bytes] : files) names_.insert(name);
    const std::string& data = files.at("t.txt");
    states_.insert({data, files.at("Kt.txt")});
    items_.insert(files.at("Kt.txt"));
    clips_.insert(files.at("ZLKCLip"));
    std::size_t place = 0;
    for (const std::string& record : recordsOf(data)) {
      if (records_.size() <= place) records_.resize(place + 1);
      records_[place++].insert(record);
    }
    if (const auto output = files.find(job_.output); output != files.end()) outputs_.insert(output->second);
  }

  std::string brokenTable(const std::string& data, const std::string& items) const {
    if (states_.contains({data, items})) return {};
    if (job_.holds == Holds::whole) return "the table is none that ever stood there";
    if (!items_.contains(items) || data.size() % kRecord != 0) return "the item file or the length is wrong";
    std::vector<std::string> records = recordsOf(data);
    if (job_.holds == Holds::once) {
      const auto sorted = [](std::vector<std::string> all) {
        std::ranges::sort(all);
        return all;
      };
      const bool once = sorted(records) == sorted(recordsOf(states_.begin()->first));
      return once ? "" : "a record is lost or doubled";
    }
    for (std::size_t at = 0; at < records.size(); ++at)
      if (at >= records_.size() || !records_[at].contains(records[at]))
        return "record " + std::to_string(at + 1) + " is none that ever stood there";
    return {};
  }

  // An output grows by whole records, or is not there.
  std::string brokenOutput(const Files& files) const {
    for (const char* name : {"u.txt", job_.output}) {
      const auto file = files.find(name);
      if (file == files.end() || *name == '\0') continue;
      const auto isPart = [&](const std::string& whole) { return whole.starts_with(file->second); };
      const bool isOutput = name == std::string_view(job_.output);
      const bool stood = isOutput && std::ranges::any_of(outputs_, isPart) && file->second.size() % kRecord == 0;
      if (!stood && file->second != last_.files.at(name)) return std::string(name) + " has lost a record";
    }
    return {};
  }

  const Job& job_;
  Files before_;
  Run last_, way_;
  std::set<std::string> names_{"zlkTalk", "mAgent", "ZLKCLip.bak", "ZLKCLip.for"}, items_, clips_, outputs_;
  std::set<std::pair<std::string, std::string>> states_;
  std::vector<std::set<std::string>> records_;
};

// "kill" and "fail 28" with the number of the call between.
std::string at(const std::string& fault, int call) {
  const std::size_t blank = fault.find(' ');
  return fault.substr(0, blank) + " " + std::to_string(call) + (blank == std::string::npos ? "" : fault.substr(blank));
}

// What went wrong; empty where all holds.
std::string disturbed(const Stage& stage, const Job& job, const Reference& reference, const std::string& fault) {
  stage.prepare();
  const Run run = stage.play(job.script, fault, job.opened);
  const bool killed = fault.starts_with("kill");
  if (killed ? run.status != kKilled : run.status != 0 && run.status != 2)
    return "the program ended with " + std::to_string(run.status);
  if (!killed && !reference.sameEnd(run.files) && run.transcript == reference.last().transcript)
    return "what failed was not told";
  const Run next = stage.play("key Y\nshow forms\nexpect forms frmSHEET Form1", "");
  if (next.status != 0) return "the table does not open";
  return reference.broken(next.files);
}

struct Count {
  int runs = 0, failures = 0;
};

void runJob(const Stage& stage, const Job& job, std::size_t every, Count& count) {
  const Reference reference(stage, job);
  if (!reference.worked()) {
    std::cout << job.name << ": the undisturbed job changes nothing\n";
    ++count.failures;
    return;
  }
  std::vector<std::string> faults;
  for (int call = reference.callsOnTheWay() + 1; call <= reference.last().calls; ++call)
    for (const char* kind : kFaults) faults.push_back(at(kind, call));
  for (int read = reference.readsOnTheWay() + 1; read <= reference.last().reads; ++read)
    faults.push_back(at("read", read));
  Count mine;
  for (std::size_t i = 0; i < faults.size(); i += every) {
    const std::string wrong = disturbed(stage, job, reference, faults[i]);
    ++mine.runs;
    if (wrong.empty()) continue;
    ++mine.failures;
    std::cout << job.name << ": " << faults[i] << ": " << wrong << "\n";
  }
  std::cout << job.name << ": " << reference.last().calls << " calls, " << reference.last().reads << " reads, "
            << mine.runs << " runs, " << mine.failures << " broken\n";
  count.runs += mine.runs;
  count.failures += mine.failures;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "usage: zelko_faults PROGRAM PRELOAD [--every N] [JOB...]\n";
    return 2;
  }
  std::size_t every = 1;
  std::set<std::string> wanted;
  for (int i = 3; i < argc; ++i) {
    if (std::string_view(argv[i]) == "--every" && i + 1 < argc)
      every = static_cast<std::size_t>(std::max(1, std::atoi(argv[++i])));
    else
      wanted.insert(argv[i]);
  }
  std::cout << std::unitbuf;  // nothing is left to be written twice where a run begins
  const Stage stage(argv[1], argv[2]);
  Count count;
  for (const Job& job : kJobs)
    if (wanted.empty() || wanted.contains(job.name)) runJob(stage, job, every, count);
  std::cout << count.runs << " disturbed runs, " << count.failures << " broken\n";
  return count.failures == 0 && count.runs > 0 ? 0 : 1;
}
