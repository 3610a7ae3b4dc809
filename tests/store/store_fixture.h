// A folder, a silent machine that answers every dialog, and tables made in the test.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "fulldisk.h"
#include "platform/host.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "voice/dialogs.h"

namespace zelko::test {

// A dialog that was shown.
struct Dialog {
  Text title, text;
  bool operator==(const Dialog&) const = default;
};

class StoreFixture {
 public:
  StoreFixture();
  ~StoreFixture();
  StoreFixture(const StoreFixture&) = delete;
  StoreFixture& operator=(const StoreFixture&) = delete;

  std::filesystem::path path(std::string_view name) const;
  Text name(std::string_view file) const { return fromUtf8(path(file).string()); }
  void write(std::string_view file, std::string_view bytes) const;
  std::string bytes(std::string_view file) const;
  std::vector<std::string> files() const;

  // A table of items "0", "1"… of these widths, left-justified but for those in `right`, and records of these bytes,
  // each padded with blanks to 254 and ended by CR LF.
  void table(std::string_view file, const std::vector<int>& widths, const std::vector<std::string>& records,
             const std::vector<int>& right = {}) const;
  // openTable of that name; true when it opened.
  bool open(std::string_view file) const;

  std::vector<Dialog> dialogs() const;              // since the last call
  int beeps() const;                                // since the last call
  void answerQuestions(std::int16_t answer) const;  // kYes at the start

 private:
  std::filesystem::path folder_;
};

// The text of an item file: its first line's memo "memo", then names and widths; lines end as told.
std::string itemFileText(const std::vector<int>& widths, const std::vector<int>& right = {},
                         std::string_view lineEnd = "\r\n");
std::string record(std::string_view cells);

}  // namespace zelko::test
