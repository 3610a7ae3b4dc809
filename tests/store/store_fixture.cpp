#include "store/store_fixture.h"

#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "platform/files/files.h"
#include "store/store_host.h"
#include "store/table/mainform.h"
#include "voice/talk.h"

namespace zelko::test {

namespace fs = std::filesystem;

StoreFixture::StoreFixture() {
  // In memory where that is to be had: the store waits for the disk whenever it writes an item file.
  const fs::path above = fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path();
  std::string pattern = (above / "zelko-store-XXXXXX").string();
  if (!mkdtemp(pattern.data())) throw std::runtime_error("no folder for the test");
  folder_ = pattern;
  useStoreHost();
  resetTable();
  resetCursor();
  resetTalk();
  forgetToldFailure();
  showReadOnlyMark(false);
  appDir = fromUtf8(folder_.string()) + u"/";
}

StoreFixture::~StoreFixture() {
  closeAll();
  std::error_code error;
  fs::remove_all(folder_, error);
}

fs::path StoreFixture::path(std::string_view name) const { return folder_ / name; }

void StoreFixture::write(std::string_view file, std::string_view bytes) const {
  std::ofstream out(path(file), std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string StoreFixture::bytes(std::string_view file) const {
  std::ifstream in(path(file), std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<std::string> StoreFixture::files() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder_)) names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

void StoreFixture::table(std::string_view file, const std::vector<int>& widths, const std::vector<std::string>& records,
                         const std::vector<int>& right) const {
  std::string data;
  for (const std::string& cells : records) data += record(cells);
  write(file, data);
  write("K" + std::string(file), itemFileText(widths, right));
}

bool StoreFixture::open(std::string_view file) const {
  Text error;
  openTable(name(file), error);
  return error.empty();
}

std::vector<Dialog> StoreFixture::dialogs() const { return takeDialogs(); }
int StoreFixture::beeps() const { return takeBeeps(); }
void StoreFixture::answerQuestions(std::int16_t answer) const { answerQuestionsWith(answer); }

std::string itemFileText(const std::vector<int>& widths, const std::vector<int>& right, std::string_view lineEnd) {
  const std::string end(lineEnd);
  std::string text = "100  ',memo,," + std::to_string(widths.size() - 1) + end;
  for (std::size_t i = 0; i < widths.size(); ++i) {
    const bool isRight = std::find(right.begin(), right.end(), static_cast<int>(i)) != right.end();
    text += std::to_string(1000 + i) + " '" + std::to_string(i) + (isRight ? ",R" : ",L") + end;
  }
  for (std::size_t i = 0; i < widths.size(); ++i)
    text += std::to_string(2000 + i) + " '" + std::to_string(widths[i]) + end;
  return text;
}

std::string record(std::string_view cells) {
  std::string bytes(cells.substr(0, kDataBytes));
  bytes.resize(kDataBytes, ' ');
  return bytes + "\r\n";
}

}  // namespace zelko::test
