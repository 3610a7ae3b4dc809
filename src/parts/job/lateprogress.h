// A progress dialog that opens where work takes longer than a second: short work stays as quiet as it was.
#pragma once

#include <cstdint>
#include <optional>

#include "voice/progress.h"

namespace zelko {

class LateProgress {
 public:
  explicit LateProgress(TextView work, std::int64_t total = 0);

  // One step done: lets events through. False once the user asked to stop.
  bool step(std::int64_t done);

 private:
  Text work_;
  std::int64_t total_;
  double opensAt_;  // day-timer
  std::optional<Progress> dialog_;
};

}  // namespace zelko
