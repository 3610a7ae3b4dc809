#include "parts/job/lateprogress.h"

#include "platform/host.h"

namespace zelko {

namespace {

constexpr double kPatience = 1;  // seconds

}  // namespace

LateProgress::LateProgress(TextView work, std::int64_t total)
    : work_(work), total_(total), opensAt_(host().dayTimer() + kPatience) {}

bool LateProgress::step(std::int64_t done) {
  if (dialog_) return dialog_->step(done);
  host().letEventsThrough();
  if (host().dayTimer() > opensAt_) dialog_.emplace(work_, total_);
  return true;
}

}  // namespace zelko
