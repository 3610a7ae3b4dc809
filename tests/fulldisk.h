#pragma once

#include <sys/resource.h>

#include <csignal>
#include <cstddef>

namespace zelko::test {

// The limit of a file's size for as long as it lives: a full disk.
class FullDisk {
 public:
  explicit FullDisk(std::size_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &old_);
    const rlimit limit{bytes, old_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &old_); }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit old_{};
};

}  // namespace zelko::test
