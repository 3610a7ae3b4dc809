// The progress dialog of long work: a stop button that lives while events are let through.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/text/text.h"

namespace zelko {

class frmDOE;

// Lives as long as the work: opens frmDOE with what is being done, closes it at the end.
class Progress {
 public:
  // `work` is said and shown; `total` 0 where the number of steps is not known.
  Progress(TextView work, std::int64_t total);
  ~Progress() noexcept(false);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // One step done: lets events through, shows how far the work is now and then. False once the user asked to stop.
  bool step(std::int64_t done);
  // True where that step would show another number.
  bool shows(std::int64_t done) const { return tenthsOf(done) != shownTenths_; }
  bool stopped() const { return stopped_; }

 private:
  std::int64_t tenthsOf(std::int64_t done) const { return total_ > 0 ? done * 10 / total_ : 0; }

  std::int64_t total_;
  bool opened_;  // false for work inside work: the outer one closes the form
  frmDOE& form_;
  std::int64_t shownTenths_ = 0;
  bool stopped_ = false;
};

// Work that is mostly short: its dialog opens once a second has passed; Esc stops it before that, too.
class LateProgress {
 public:
  explicit LateProgress(TextView work, std::int64_t total = 0);
  // As Progress.
  bool step(std::int64_t done);
  bool shows(std::int64_t done);
  // Before a question: the dialog goes, unheard; behind it, the second begins anew.
  void close();
  void restart();

 private:
  bool isLate();

  Text work_;
  std::int64_t total_;
  float begun_ = 0;
  std::optional<Progress> dialog_;
};

}  // namespace zelko
