#include "platform/files/readwindow.h"

#include <cerrno>
#include <cstring>
#include <ctime>

#include <unistd.h>

namespace zelko {
namespace {

constexpr std::int64_t kFreshMilliseconds = 100;

std::int64_t nowMilliseconds() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC_COARSE, &now);  // a few nanoseconds: it is asked at every record
  return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1000000;
}

}  // namespace

std::ptrdiff_t readAt(int descriptor, char* out, std::size_t size, std::int64_t offset) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t got = pread(descriptor, out + done, size - done, offset + static_cast<std::int64_t>(done));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return -1;
    if (got == 0) break;
    done += static_cast<std::size_t>(got);
  }
  return static_cast<std::ptrdiff_t>(done);
}

bool ReadWindow::copy(std::int64_t offset, std::size_t size, char* out) const {
  if (held_ < size || offset < start_) return false;
  if (offset - start_ > static_cast<std::int64_t>(held_ - size)) return false;
  if (nowMilliseconds() - loadedAt_ > kFreshMilliseconds) return false;
  std::memcpy(out, bytes_.data() + (offset - start_), size);
  return true;
}

void ReadWindow::load(int descriptor, std::int64_t offset) {
  bytes_.resize(kLargestLoad);
  start_ = offset;
  loadedAt_ = nowMilliseconds();
  const std::ptrdiff_t got = readAt(descriptor, bytes_.data(), load_, offset);
  held_ = got > 0 ? static_cast<std::size_t>(got) : 0;
  if (load_ < kLargestLoad) load_ *= 2;
}

void ReadWindow::patch(std::int64_t offset, const char* bytes, std::size_t size) {
  const std::int64_t end = start_ + static_cast<std::int64_t>(held_);
  const std::int64_t patchEnd = offset + static_cast<std::int64_t>(size);
  if (held_ == 0 || patchEnd <= start_ || offset >= end) return;
  if (offset < start_ || patchEnd > end) return drop();
  std::memcpy(bytes_.data() + (offset - start_), bytes, size);
}

}  // namespace zelko
