#include "speech/reader.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "speech/dictionary.h"
#include "speech/kana.h"
#include "speech/utterance.h"

namespace zelko {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds kStaleAfter{2000};
constexpr milliseconds kFirstPause{250};  // between two attempts; doubles
constexpr milliseconds kLongestPause{30000};

enum class Kind : std::uint8_t { say, agent, stop };

struct Request {
  Kind kind;
  Text sentence;
  Clock::time_point came;
};

}  // namespace

struct Reader::Worker {
  explicit Worker(VoiceService::Settings settings)
      : leaveFd(eventfd(0, EFD_CLOEXEC)), service(std::move(settings), leaveFd), thread([this] { run(); }) {}

  ~Worker() {
    {
      const std::lock_guard lock(mutex);
      leaving = true;
    }
    const std::uint64_t one = 1;
    static_cast<void>(!write(leaveFd, &one, sizeof one));
    changed.notify_all();
    thread.join();
    close(leaveFd);
  }

  void ask(Kind kind, TextView sentence) {
    {
      const std::lock_guard lock(mutex);
      newest = Request{kind, Text(sentence), Clock::now()};
    }
    changed.notify_all();
  }

  void run() {
    while (const std::optional<Request> request = next()) {
      if (request->kind == Kind::stop)
        service.stop();
      else
        deliver(*request);
      const std::lock_guard lock(mutex);
      busy = false;
      changed.notify_all();
    }
  }

  std::optional<Request> next() {
    std::unique_lock lock(mutex);
    changed.wait(lock, [this] { return leaving || newest.has_value(); });
    if (leaving) return std::nullopt;
    busy = true;
    return std::exchange(newest, std::nullopt);
  }

  // A second attempt follows at once where an open line broke: the service may only have been started anew.
  void deliver(const Request& request) {
    VoiceService::Voice voice;
    const std::string kana = prepared(request, voice);
    if (kana.empty()) {
      service.stop();
      return;
    }
    if (service.connected() && service.speak(kana, voice)) return;
    while (waitToTry(request)) {
      if (service.connect() && service.speak(kana, voice)) {
        found = true;
        pause = kFirstPause;
        return;
      }
      found = false;
      nextTry = Clock::now() + pause;
      pause = std::min(pause * 2, kLongestPause);
    }
  }

  std::string prepared(const Request& request, VoiceService::Voice& voice) {
    const bool agent = request.kind == Kind::agent;
    const Utterance utterance = agent ? agentUtterance(request.sentence) : clipboardUtterance(request.sentence);
    if (!agent && utterance.rate) rate = utterance.rate;
    voice = {agent, agent ? utterance.rate : rate, utterance.pitch};
    return toUtf8(kanaForSpeech(utterance.words, dictionary, longestKana(voice.rate)));
  }

  // Waits for the time of the next attempt; false where it comes too late for this sentence, or a newer one is there.
  bool waitToTry(const Request& request) {
    if (nextTry > request.came + kStaleAfter || Clock::now() > request.came + kStaleAfter) return false;
    std::unique_lock lock(mutex);
    changed.wait_until(lock, nextTry, [this] { return leaving || newest.has_value(); });
    return !leaving && !newest.has_value();
  }

  std::mutex mutex;
  std::condition_variable changed;
  std::optional<Request> newest;
  bool leaving = false;
  bool busy = false;
  std::atomic<bool> found = true;

  // The thread's own.
  int leaveFd;
  VoiceService service;
  Dictionary dictionary;
  std::optional<int> rate;  // of the last speed tag
  milliseconds pause = kFirstPause;
  Clock::time_point nextTry;
  std::thread thread;
};

Reader::Reader(VoiceService::Settings settings) : worker_(std::make_unique<Worker>(std::move(settings))) {}

Reader::~Reader() = default;

void Reader::say(TextView sentence) { worker_->ask(Kind::say, sentence); }
void Reader::agent(TextView sentence) { worker_->ask(Kind::agent, sentence); }
void Reader::stop() { worker_->ask(Kind::stop, {}); }
bool Reader::serviceFound() const { return worker_->found; }

bool Reader::settled(milliseconds limit) {
  std::unique_lock lock(worker_->mutex);
  return worker_->changed.wait_for(lock, limit, [this] { return !worker_->busy && !worker_->newest.has_value(); });
}

}  // namespace zelko
