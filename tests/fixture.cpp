#include "fixture.h"

#include <doctest/doctest.h>
#include <unistd.h>

#include <fstream>
#include <iterator>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/forms/form.h"
#include "platform/text/sjis.h"

namespace zelko {

Stage::Stage() : thread_([this] { serve(); }) {}

Stage::~Stage() {
  {
    std::unique_lock lock(mutex_);
    over_ = true;
    giveTurn(true);
  }
  thread_.join();
}

void Stage::giveTurn(bool toProgram) {
  programsTurn_ = toProgram;
  turn_.notify_all();
}

void Stage::run(std::function<void()> action) {
  std::unique_lock lock(mutex_);
  action_ = std::move(action);
  giveTurn(true);
  turn_.wait(lock, [this] { return !programsTurn_; });
}

bool Stage::awaitAction(std::unique_lock<std::mutex>& lock) {
  turn_.wait(lock, [this] { return programsTurn_; });
  return !over_;
}

void Stage::serve() {
  std::unique_lock lock(mutex_);
  while (awaitAction(lock)) {
    auto action = std::move(action_);
    lock.unlock();
    action();
    lock.lock();
    if (!over_) giveTurn(false);
  }
}

bool Stage::next() {
  std::unique_lock lock(mutex_);
  giveTurn(false);
  if (!awaitAction(lock)) return false;
  auto action = std::move(action_);
  lock.unlock();
  action();
  return true;
}

namespace {

std::filesystem::path newFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "zelko-XXXXXX").string();
  REQUIRE(::mkdtemp(pattern.data()) != nullptr);
  return pattern;
}

Text joinedLine(const char16_t* number, const Text& rest) { return Text(number) + u" '" + rest + kLineEnd; }

Text fourDigits(int number) {
  Text digits(4, u'0');
  for (std::size_t at = 4; at-- > 0; number /= 10) digits[at] = static_cast<char16_t>(u'0' + number % 10);
  return digits;
}

std::string padded(const Text& cell, const ItemOfTable& item) {
  std::string bytes = toSjis(cell).substr(0, static_cast<std::size_t>(item.width));
  std::string blanks(static_cast<std::size_t>(item.width) - bytes.size(), ' ');
  return item.side == u'R' ? blanks + bytes : bytes + blanks;
}

}  // namespace

Fixture::Fixture()
    : folder_(newFolder()),
      host_([this](std::string_view line) { lines_.emplace_back(line); }),
      player_(host_, {}, u"Form1") {
  host_.nextAction = [this] { return stage_.next(); };
  setHost(&host_);
}

Fixture::~Fixture() {
  // The program's thread leaves its modal forms before anything that it uses goes.
  if (!ended_) run([] { throw ProgramEnd{}; });
  closeAll();
  screen().reset();
  setHost(nullptr);
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

void Fixture::guarded(const std::function<void()>& action) {
  try {
    action();
    host_.idle();
    return;
  } catch (const ProgramEnd&) {
    lines_.emplace_back("end");
  } catch (const HeadlessHost::InputEnded&) {
  } catch (const ScriptError& error) {
    complaint_ = error.reason;
    return;
  } catch (const Fault& fault) {
    lines_.emplace_back("fault " + oneLine(fault.text));
  } catch (const std::exception& error) {
    lines_.emplace_back(std::string("fault ") + error.what());
  }
  ended_ = true;
}

void Fixture::run(std::function<void()> action) {
  REQUIRE_FALSE(ended_);
  // An action inside a modal loop is part of the one that opened the form: what it throws must reach that one.
  stage_.run([this, action = std::move(action)] {
    if (screen().handlerRuns()) return action();
    guarded(action);
  });
  std::string complaint;
  complaint.swap(complaint_);
  INFO(complaint);
  REQUIRE(complaint.empty());
}

void Fixture::play(const std::string& lines) {
  for (const Action& action : parseScript(lines)) {
    run([this, action] { player_.play(action); });
  }
}

std::string Fixture::said() {
  std::string sentences;
  for (; spoken_ < lines_.size(); ++spoken_) {
    if (!lines_[spoken_].starts_with("say ")) continue;
    if (!sentences.empty()) sentences += " / ";
    sentences += lines_[spoken_].substr(4);
  }
  return sentences;
}

std::vector<std::string> Fixture::events() {
  std::vector<std::string> since(lines_.begin() + static_cast<std::ptrdiff_t>(told_), lines_.end());
  told_ = lines_.size();
  return since;
}

Text Fixture::makeTable(TextView name, const std::vector<ItemOfTable>& items,
                        const std::vector<std::vector<Text>>& rows) {
  Text last = fromUtf8(std::to_string(items.size() - 1));
  Text description = joinedLine(u"100 ", u"," + Text(name) + u",," + last);
  for (std::size_t at = 0; at < items.size(); ++at) {
    Text side(1, items[at].side);
    description += joinedLine(fourDigits(1000 + static_cast<int>(at)).c_str(), items[at].name + u"," + side);
  }
  for (std::size_t at = 0; at < items.size(); ++at) {
    Text width = fromUtf8(std::to_string(items[at].width));
    description += joinedLine(fourDigits(2000 + static_cast<int>(at)).c_str(), width);
  }
  std::string data;
  for (const auto& row : rows) {
    std::string bytes;
    for (std::size_t at = 0; at < row.size(); ++at) bytes += padded(row[at], items[at]);
    bytes.resize(254, ' ');
    data += bytes + "\r\n";
  }
  std::string file = toUtf8(name) + ".txt";
  table_ = folder_ / file;
  writeBytes(folder_ / ("K" + file), toSjis(description));
  writeBytes(table_, data);
  return fromUtf8(table_.string());
}

Text Fixture::record(int number) const {
  std::string bytes = readBytes(table_);
  auto start = static_cast<std::size_t>(number - 1) * 256;
  if (start >= bytes.size()) return {};
  std::string record = bytes.substr(start, 254);
  return fromSjis(record.substr(0, record.find_last_not_of(' ') + 1));
}

int Fixture::records() const { return static_cast<int>(std::filesystem::file_size(table_) / 256); }

std::string readBytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void writeBytes(const std::filesystem::path& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace zelko
