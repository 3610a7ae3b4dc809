// The border between Qt and the program: no exception may pass through a frame of Qt.
#pragma once

#include <QEventLoop>
#include <functional>

namespace zelko {

// Runs a piece of the program that Qt called. What it throws is kept, and every loop that runs is left; while something
// is kept nothing more of the program runs.
void guarded(const std::function<void()>& run);

// Throws what was kept. Everything that lets events run calls it when it comes back.
void rethrowKept();

// An event loop that a kept exception ends.
class GuardedLoop {
 public:
  GuardedLoop();
  ~GuardedLoop();
  GuardedLoop(const GuardedLoop&) = delete;
  GuardedLoop& operator=(const GuardedLoop&) = delete;
  // Runs until quit(), or until something was kept; then throws it.
  void run(QEventLoop::ProcessEventsFlags flags = QEventLoop::AllEvents);
  void quit() { loop_.quit(); }
  QEventLoop& loop() { return loop_; }

 private:
  QEventLoop loop_;
};

// While it lives only forms that are live during work take input, and no timer fires for the others.
class WorkScope {
 public:
  WorkScope();
  ~WorkScope();
  WorkScope(const WorkScope&) = delete;
  WorkScope& operator=(const WorkScope&) = delete;
};

}  // namespace zelko
