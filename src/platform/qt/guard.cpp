#include "platform/qt/guard.h"

#include <exception>
#include <utility>
#include <vector>

#include "platform/forms/form.h"

namespace zelko {

namespace {
std::exception_ptr kept;
std::vector<QEventLoop*> loops;
}  // namespace

void guarded(const std::function<void()>& run) {
  if (kept) return;
  try {
    const Screen::HandlerScope scope;
    run();
  } catch (...) {
    kept = std::current_exception();
    for (QEventLoop* loop : loops) loop->quit();
  }
}

void rethrowKept() {
  if (kept) std::rethrow_exception(std::exchange(kept, nullptr));
}

GuardedLoop::GuardedLoop() { loops.push_back(&loop_); }
GuardedLoop::~GuardedLoop() { std::erase(loops, &loop_); }

void GuardedLoop::run(QEventLoop::ProcessEventsFlags flags) {
  if (!kept) loop_.exec(flags);
  rethrowKept();
}

WorkScope::WorkScope() { ++screen().workDepth; }
WorkScope::~WorkScope() { --screen().workDepth; }

}  // namespace zelko
