#include "editor/editor_fixture.h"

#include <unistd.h>

#include <deque>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "editor/state.h"
#include "editor/view.h"
#include "platform/files.h"
#include "platform/host.h"
#include "platform/routing.h"
#include "platform/sjis.h"
#include "store/cursor.h"
#include "store/table.h"
#include "voice/talk.h"

namespace zelko::test {
namespace {

namespace fs = std::filesystem;

class EditorHost : public Host {
 public:
  void formShown(Form&) override {}
  void formHidden(Form&) override {}
  void runModal(Form& form) override {
    while (form.visible() && !script.empty()) next();
  }
  void letEventsThrough() override {}
  void waitSeconds(double seconds) override { clock += seconds; }
  float dayTimer() override { return static_cast<float>(clock); }
  DateTime now() override { return {}; }
  std::uint32_t randomBits() override { return 1; }
  void beep() override { heard.push_back("beep"); }
  bool clipboardText(Text& out) override { return out = clipboard, true; }
  bool clearClipboard() override { return clipboard.clear(), true; }
  bool sayOnClipboard(TextView sentence) override {
    heard.push_back("say " + toUtf8(sentence));
    return setClipboard(sentence);
  }
  bool setClipboard(TextView text) override { return clipboard = text, true; }
  Character& character() override { throw std::logic_error("no character here"); }
  Printer& printer() override { throw std::logic_error("no printer here"); }
  std::unique_ptr<SerialPort> openSerial(int) override { return nullptr; }

  void next();
  void reset() {
    script.clear();
    heard.clear();
    clipboard.clear();
    clock = 36000;
    ended = false;
  }

  std::deque<std::string> script;
  Heard heard;
  Text clipboard;
  double clock = 36000;
  bool ended = false;
};

EditorHost& machine() {
  static EditorHost host;
  return host;
}

void act(const std::string& action) {
  auto text = [&](std::string_view head) { return fromUtf8(action.substr(head.size())); };
  if (action.starts_with("type ")) {
    for (char16_t ch : text("type ")) typeCharacter(ch);
  } else if (action.starts_with("commit ")) {
    dynamic_cast<TextBox&>(*screen().activeControl()).commitText(text("commit "));
  } else if (action.starts_with("focus ")) {
    mainForm().find(text("focus "))->setFocus();
  } else if (action.starts_with("menu ")) {
    mainForm().menu().choose(*mainForm().menu().find(text("menu ")));
  } else {
    KeyEvent key;
    if (!keyByName(fromUtf8(action), key)) throw std::invalid_argument(action);
    pressKey(key.code, key.mask);
  }
}

void EditorHost::next() {
  std::string action = script.front();
  script.pop_front();
  clock += 1;
  act(action);
}

std::string itemFile(const std::vector<Item>& items) {
  auto number = [](std::size_t n) { return std::to_string(n) + " '"; };
  std::string text = "100  ',memo,," + std::to_string(items.size() - 1) + "\r\n";
  for (std::size_t i = 0; i < items.size(); ++i)
    text += number(1000 + i) + toSjis(fromUtf8(items[i].name)) + "," + items[i].alignment + "\r\n";
  for (std::size_t i = 0; i < items.size(); ++i) text += number(2000 + i) + std::to_string(items[i].width) + "\r\n";
  return text;
}

std::string recordBytes(const std::vector<Item>& items, const std::vector<std::string>& cells) {
  std::string record;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    std::string cell = toSjis(fromUtf8(cells[i]));
    std::string blanks(static_cast<std::size_t>(items[i].width) - cell.size(), ' ');
    record += items[i].alignment == 'R' ? blanks + cell : cell + blanks;
  }
  record.resize(254, ' ');
  return record + "\r\n";
}

void write(const fs::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

}  // namespace

EditorFixture::EditorFixture() {
  std::string pattern = (fs::temp_directory_path() / "zelko-editor-XXXXXX").string();
  if (!mkdtemp(pattern.data())) throw std::runtime_error("no folder for the test");
  folder_ = pattern;
  setHost(&machine());
  screen().reset();
  machine().reset();
  resetTable();
  resetCursor();
  resetEditor();
  resetTalk();
  appDir = fromUtf8(pattern) + u"/";
}

EditorFixture::~EditorFixture() {
  closeAll();
  screen().reset();
  std::error_code error;
  fs::remove_all(folder_, error);
}

void EditorFixture::open(const std::vector<Item>& items, const std::vector<std::vector<std::string>>& records,
                         int level) {
  std::string data;
  for (const auto& cells : records) data += recordBytes(items, cells);
  write(folder_ / kTable, data);
  write(folder_ / ("K" + std::string(kTable)), itemFile(items));
  talkMode = static_cast<std::int16_t>(level);
  if (!openAndEnter(fromUtf8(path(kTable)))) throw std::runtime_error("the table did not open");
  heard();
}

Heard EditorFixture::play(const std::vector<std::string>& actions) {
  machine().script.insert(machine().script.end(), actions.begin(), actions.end());
  try {
    while (!machine().script.empty()) machine().next();
  } catch (const ProgramEnd&) {
    machine().ended = true;
  }
  return heard();
}

Heard EditorFixture::heard() { return std::exchange(machine().heard, {}); }

bool EditorFixture::ended() const { return machine().ended; }

int EditorFixture::records() const { return static_cast<int>(file(kTable).size() / 256); }

std::string EditorFixture::record(int number) const {
  std::string bytes = file(kTable).substr(static_cast<std::size_t>(number - 1) * 256, 256);
  if (bytes.size() != 256 || !bytes.ends_with("\r\n")) throw std::runtime_error("a record that is not whole");
  bytes.erase(bytes.find_last_not_of(' ', 253) + 1);
  return toUtf8(fromSjis(bytes));
}

std::string EditorFixture::file(std::string_view name) const {
  std::ifstream in(folder_ / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

Form1& mainForm() { return form<Form1>(); }

std::string utf8(TextView text) { return toUtf8(text); }

}  // namespace zelko::test
