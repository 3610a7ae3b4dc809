// The host that shows the forms as windows of the desktop.
#pragma once

#include <chrono>
#include <random>
#include <unordered_map>
#include <vector>

#include "platform/host.h"
#include "platform/qt/guard.h"
#include "platform/qt/inputfilter.h"
#include "platform/qt/printing.h"
#include "platform/qt/window.h"

namespace zelko {

class QtCharacter : public Character {
 public:
  bool load(TextView file) override;
  void unload() override;
  void show() override {}  // it is heard, not seen
  void hide() override {}
  void stop() override;
  void speak(TextView text) override;
};

// Needs a QApplication that lives longer.
class QtHost : public Host {
 public:
  QtHost();
  ~QtHost() override;
  QtHost(const QtHost&) = delete;
  QtHost& operator=(const QtHost&) = delete;

  // Starts the program and serves events until no form is shown any more. Throws what ended it: ProgramEnd or a fault.
  void run(const std::function<void()>& startProgram);

  // Before the forms go all at once at the end: nothing of them is asked for any more.
  void closeWindows();

  FormWindow* windowOf(const Form& form) const;

  void formShown(Form& form) override;
  void formHidden(Form& form) override;
  void formForgotten(Form& form) override;
  void formCaptionChanged(Form& form) override;
  void controlChanged(Control& control, Property property) override;
  void menuChanged(Form& form) override;
  bool opensMenu(Form& form, MenuEntry& entry) override;
  void focusMoved(Form& form, Control* control) override;

  void runModal(Form& form) override;
  void letEventsThrough() override;
  bool eventWaits() override { return Clock::now() >= nextLook_; }
  void waitSeconds(double seconds) override;
  float dayTimer() override;
  DateTime now() override;
  std::uint32_t randomBits() override;
  void beep() override;
  bool savesImages() override { return true; }
  bool saveImage(const PictureBox& picture, TextView path) override;

  bool clipboardText(Text& out) override;
  bool clearClipboard() override;
  bool sayOnClipboard(TextView sentence) override;
  bool setClipboard(TextView text) override;

  Character& character() override { return character_; }
  Printer& printer() override { return printer_; }
  std::unique_ptr<SerialPort> openSerial(int port, TextView device) override;
  bool openLink(TextView link) override;

 private:
  using Clock = std::chrono::steady_clock;

  void reveal(Form& form, bool withFocus);
  void revealWaiting();
  void endWhenNothingIsShown();

  std::unordered_map<const Form*, FormWindow*> windows_;
  std::vector<Form*> waiting_;     // shown in the model, not yet on the screen
  std::vector<Form*> modalLoops_;  // the forms whose loops run, the innermost last
  std::vector<GuardedLoop*> loops_;
  InputFilter filter_;
  QtCharacter character_;
  QtPrinter printer_;
  std::mt19937 random_{std::random_device{}()};
  Clock::time_point nextLook_{};
};

}  // namespace zelko
