#include "bench_table.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <stdexcept>
#include <string>

#include "platform/headless/headless_host.h"
#include "platform/text/sjis.h"
#include "store/table/itemfile.h"
#include "voice/talk.h"

namespace zelko::bench {

namespace fs = std::filesystem;

namespace {

std::string recordOf(std::int32_t number) {
  static const std::string names = toSjis(u"佐藤鈴木高橋田中伊藤渡辺山本中村小林加藤");
  std::string cells = std::to_string(number);
  cells.resize(10, ' ');
  cells += names.substr(static_cast<std::size_t>(number % 10) * 4, 4);
  cells.resize(50, ' ');
  cells += std::to_string(number % 101);
  cells.resize(254, ' ');
  return cells + "\r\n";
}

double secondsOf(clockid_t clock) {
  timespec now{};
  clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

}  // namespace

Folder::Folder() {
  std::string pattern = (fs::temp_directory_path() / "zelko-bench-XXXXXX").string();
  if (!mkdtemp(pattern.data())) throw std::runtime_error("no folder for the benchmark");
  path_ = pattern;
}

Folder::~Folder() {
  std::error_code error;
  fs::remove_all(path_, error);
}

fs::path Folder::table(const char* name, std::int32_t records) const {
  std::ofstream item(path_ / ("K" + std::string(name)), std::ios::binary);
  item << "100  ',bench,,4\r\n1000 'ID,L\r\n1001 'NAME,L\r\n1002 'POINTS,R\r\n1003 'A,L\r\n1004 'B,L\r\n"
          "2000 '10\r\n2001 '40\r\n2002 '4\r\n2003 '100\r\n2004 '100\r\n";
  std::ofstream data(path_ / name, std::ios::binary);
  for (std::int32_t number = 1; number <= records; ++number) data << recordOf(number);
  if (!data.flush() || !item.flush()) throw std::runtime_error("no room for the table of the benchmark");
  return path_ / name;
}

void useSilentHost() {
  static HeadlessHost machine([](std::string_view) {});
  setHost(&machine);
  resetTalk();
}

void openOrEnd(const fs::path& table) {
  Text error;
  openTable(fromUtf8(table.string()), error);
  if (error.empty()) return;
  std::fprintf(stderr, "%s does not open\n", table.c_str());
  std::exit(1);
}

double wallSeconds() { return secondsOf(CLOCK_MONOTONIC); }
double cpuSeconds() { return secondsOf(CLOCK_PROCESS_CPUTIME_ID); }

}  // namespace zelko::bench
