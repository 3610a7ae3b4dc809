// The whole program per key, from key-down to the sentence, on a table of a million records: each kind of key against
// the longest time that a key may take; and a silent run, which composes nothing. Also the start, up to the first
// sentence, each in a process of its own.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <string>

#include "app/wiring.h"
#include "bench_table.h"
#include "platform/forms/keys.h"
#include "platform/forms/routing.h"
#include "platform/headless/headless_host.h"
#include "store/table/cursor.h"
#include "voice/talk.h"

namespace {

using namespace zelko;
using namespace zelko::bench;

constexpr std::int32_t kRecords = 1000000;
constexpr int kPresses = 20000;
constexpr double kKeyLimit = 100;   // microseconds of CPU
constexpr double kStartLimit = 50;  // milliseconds of CPU

struct KeyJob {
  const char* name;
  int code, mask;
};
constexpr KeyJob kJobs[] = {
    {"Down", key::Down, shift::None},
    {"Up", key::Up, shift::None},
    {"Right", key::Right, shift::None},
    {"PageDown", key::PageDown, shift::None},
    {"Ctrl+Up", key::Up, shift::Ctrl},
    {"Alt+N", 'N', shift::Alt},
    {"Alt+M", 'M', shift::Alt},
    {"Shift+Ctrl+Q", 'Q', shift::ShiftCtrl},
    {"Ctrl+F2", key::function(2), shift::Ctrl},
};

// One key a second of the virtual clock, so that the gate is open for each.
double microsecondsAKey(HeadlessHost& host, const KeyJob& job) {
  const double start = cpuSeconds();
  for (int i = 0; i < kPresses; ++i) {
    host.pass(1000);
    pressKey(job.code, job.mask);
  }
  return (cpuSeconds() - start) * 1e6 / kPresses;
}

// Typing a character and storing it with Down.
double microsecondsATypedStep(HeadlessHost& host) {
  const double start = cpuSeconds();
  for (int i = 0; i < kPresses; ++i) {
    host.pass(1000);
    typeCharacter(u'あ');
    host.pass(1000);
    pressKey(key::Down, shift::None);
  }
  return (cpuSeconds() - start) * 1e6 / kPresses;
}

void keysOf(const Text& table) {
  long sentences = 0;
  HeadlessHost host([&](std::string_view line) { sentences += line.starts_with("say "); });
  setHost(&host);
  wireProgram();
  startProgram(table);
  talkMode = 2;
  for (const KeyJob& job : kJobs) {
    sentences = 0;
    const double time = microsecondsAKey(host, job);
    std::printf("%-13s %6.1f us, ratio to the limit %.2f, %ld sentences of %d keys\n", job.name, time, time / kKeyLimit,
                sentences, kPresses);
  }
  const double typed = microsecondsATypedStep(host);
  std::printf("typed, stored %6.1f us, ratio to the limit %.2f\n", typed, typed / kKeyLimit);

  talkMode = 0;
  composedSentences = 0;
  double silent = 0;
  for (const KeyJob& job : kJobs) silent += microsecondsAKey(host, job);
  std::printf("silent, a key %6.1f us, %lld sentences composed\n", silent / static_cast<double>(std::size(kJobs)),
              static_cast<long long>(composedSentences));
  screen().reset();
  setHost(nullptr);
}

// Until the first sentence in a child of its own, loading included in what the child costs.
double millisecondsOfStart(const Text& table) {
  const pid_t child = fork();
  if (child == 0) {
    HeadlessHost host([](std::string_view line) {
      if (line.starts_with("say ")) _exit(0);
    });
    setHost(&host);
    wireProgram();
    startProgram(table);
    talkMode = 2;
    pressKey('N', shift::Alt);
    _exit(1);
  }
  int status = 0;
  rusage used{};
  wait4(child, &status, 0, &used);
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) std::puts("no first sentence");
  return (static_cast<double>(used.ru_utime.tv_sec + used.ru_stime.tv_sec)) * 1e3 +
         static_cast<double>(used.ru_utime.tv_usec + used.ru_stime.tv_usec) / 1e3;
}

}  // namespace

int main() {
  const Folder folder;
  const Text table = fromUtf8(folder.table("keys.txt", kRecords).string());
  const double start = millisecondsOfStart(table);
  std::printf("start to the first sentence %.1f ms, ratio to the limit %.2f\n", start, start / kStartLimit);
  keysOf(table);
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  std::printf("peak memory %.1f MB\n", static_cast<double>(used.ru_maxrss) / 1024);
}
