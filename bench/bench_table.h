// What the benchmarks share: a table of their own making, a silent machine, and clocks.
#pragma once

#include <cstdint>
#include <filesystem>

namespace zelko::bench {

// A folder that goes with the benchmark.
class Folder {
 public:
  Folder();
  ~Folder();
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  // Makes a table of five items with that many records, all different, and gives the path of its data file.
  std::filesystem::path table(const char* name, std::int32_t records) const;

 private:
  std::filesystem::path path_;
};

// The headless host, silent, without sentences.
void useSilentHost();
// openTable; ends the benchmark where that fails.
void openOrEnd(const std::filesystem::path& table);

double wallSeconds();
double cpuSeconds();  // of this process

}  // namespace zelko::bench
