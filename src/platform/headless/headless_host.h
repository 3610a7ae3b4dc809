// The host without a screen: a virtual clock, recording devices, and a transcript of what a user would hear and see.
#pragma once

#include <array>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "platform/headless/recorders.h"
#include "platform/host.h"

namespace zelko {

class Timer;

class HeadlessHost : public Host {
 public:
  explicit HeadlessHost(Transcript transcript);

  // Plays one more action for a modal loop; false, or empty, where there is none left: the loop then throws InputEnded.
  std::function<bool()> nextAction;
  struct InputEnded {};

  // The clock stands still but for these: what passes here, and what the program waits. Timers fire as they fall due,
  // those that fell due during a wait with the next idle(). Under long work those of the forms that are live fire, the
  // others when it is over.
  void pass(std::int64_t milliseconds);
  void idle();
  void setClock(const DateTime& when);

  void seed(std::uint32_t number) { generator_.seed(number); }
  // Delivers the action when long work lets events through for the nth time from now.
  void deliverLater(int nth, std::function<void()> action);
  // Another program's copy, and what stands there; a clipboard that fails keeps what it has.
  void copyElsewhere(TextView text);
  const Text& clipboard() const { return clipboard_; }
  bool clipboardFails = false;
  // An input method shows `text`, its stretch between "[" and "]" highlighted; empty drops it. A commit ends it.
  void compose(TextView text);
  void endComposition();
  void takePrinter(bool away) { printer_.missing = away; }
  void setPort(int port, PortState state) { ports_[static_cast<std::size_t>(port - 1)] = state; }
  void print(std::string_view line) { transcript_(line); }

  void formShown(Form& form) override;
  void formHidden(Form& form) override;
  void formForgotten(Form& form) override;
  void runModal(Form& form) override;
  void letEventsThrough() override;
  // A delivery is counted in passes, so that each pass is wanted while one is due; and only a clock that has moved
  // makes a timer fall due.
  bool eventWaits() override { return !deliveries_.empty() || elapsed_ != lookedAt_; }
  void waitSeconds(double seconds) override;
  float dayTimer() override;
  DateTime now() override;
  std::uint32_t randomBits() override { return static_cast<std::uint32_t>(generator_()); }
  void beep() override { transcript_("beep"); }
  void tone(double hertz, int milliseconds) override;
  bool openLink(TextView link) override;
  bool clipboardText(Text& out) override;
  std::optional<Text> othersClipboard() override { return others_; }
  bool clearClipboard() override;
  bool sayOnClipboard(TextView sentence) override;
  bool setClipboard(TextView text) override;
  Character& character() override { return character_; }
  Printer& printer() override { return printer_; }
  std::unique_ptr<SerialPort> openSerial(int port, TextView device) override;

 private:
  struct Due {
    Timer* timer;
    int interval;
    std::int64_t at;
  };
  struct Delivery {
    std::int64_t pass;
    std::function<void()> action;
  };
  void deliverDue();
  void lookAtTimers();
  bool fireNextTimer(std::int64_t until);

  Transcript transcript_;
  std::int64_t elapsed_ = 0;  // milliseconds since the start; never goes back
  std::int64_t start_;        // milliseconds since 1970 at the start
  std::vector<Due> timers_;
  std::vector<Delivery> deliveries_;
  std::int64_t passes_ = 0, lookedAt_ = 0;  // when timers were looked at last
  std::mt19937 generator_;
  Text clipboard_;
  std::optional<Text> others_;
  bool composing_ = false;
  std::array<PortState, 3> ports_{};
  RecordingPrinter printer_;
  RecordingCharacter character_;
};

}  // namespace zelko
