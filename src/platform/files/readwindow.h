// A read window behind a file that is walked through record by record.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zelko {

// Bytes of a file from some offset on. It serves reads for a tenth of a second only, so that what another
// program writes is seen; what this program writes is patched in.
class ReadWindow {
 public:
  // False where the window does not hold all of the bytes, or is too old.
  bool copy(std::int64_t offset, std::size_t size, char* out) const;
  // Reads the bytes from `offset` on, more with every load of the walk, 64 KiB at most.
  void load(int descriptor, std::int64_t offset);
  void patch(std::int64_t offset, const char* bytes, std::size_t size);
  void drop() { held_ = 0; }
  // The walk is over: the next one begins with a small load.
  void shrink() { load_ = kFirstLoad; }

 private:
  static constexpr std::size_t kFirstLoad = 4096, kLargestLoad = 65536;

  std::vector<char> bytes_;
  std::int64_t start_ = 0;
  std::size_t held_ = 0;
  std::size_t load_ = kFirstLoad;
  std::int64_t loadedAt_ = 0;  // milliseconds
};

// Reads until `size` bytes or the end of the file; how many came, or -1 with errno set.
std::ptrdiff_t readAt(int descriptor, char* out, std::size_t size, std::int64_t offset);

}  // namespace zelko
