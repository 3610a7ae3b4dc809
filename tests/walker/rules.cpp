#include "walker/rules.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/files/files.h"
#include "platform/forms/form.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"
#include "store/table/table.h"
#include "voice/talk.h"

namespace zelko::test {
namespace {

namespace fs = std::filesystem;
using Files = std::map<std::string, std::string>;

Files filesHere() {
  Files files;
  for (const auto& entry : fs::directory_iterator(".")) {
    if (!entry.is_regular_file()) continue;
    std::ifstream in(entry.path(), std::ios::binary);
    files[entry.path().filename().string()] = {std::istreambuf_iterator<char>(in), {}};
  }
  return files;
}

bool isTable(const std::string& name, const Files& files) {
  return name.ends_with(".txt") && (files.contains("K" + name) || files.contains("k" + name));
}

std::string brokenRecords(const std::string& bytes) {
  constexpr std::size_t kRecord = 256;
  if (bytes.size() % kRecord != 0) return "a table with a part of a record";
  for (std::size_t end = kRecord; end <= bytes.size(); end += kRecord)
    if (bytes.compare(end - 2, 2, "\r\n") != 0) return "a record without its line end";
  return "";
}

// What only stands in a folder while a rewrite or a question about one is under way.
bool isWorkFile(const std::string& name) { return name.ends_with(".QQQ") || name.ends_with(".$$$"); }

bool isKnown(const std::string& name) {
  static constexpr std::array<std::string_view, 10> names = {
      "ZLKCLip", "ZLKCLip.bak", "ZLKCLip.for", "zlkTalk", "mAgent", "zlkHAHAKI", "zlkTEL", "zlkPORT", "KEKKA", "EKKA"};
  if (std::find(names.begin(), names.end(), name) != names.end()) return true;
  return name.ends_with(".txt") || name.ends_with(".TXT") || name.ends_with(".csv") || name.ends_with(".svg") ||
         name.ends_with(".png");
}

// At the other levels less is said, and only what is asked for.
constexpr int kUsualLevel = 2;

bool mainFormIsFree() {
  const Form* form = screen().activeForm();
  return form && form->name() == u"Form1" &&
         std::none_of(screen().shown().begin(), screen().shown().end(), [](const Form* f) { return f->modal(); });
}

std::string placeOfFocus() {
  const Form* form = screen().activeForm();
  if (!form) return "nowhere";
  const Control* control = form->activeControl();
  return toUtf8(form->name()) + (control ? "." + toUtf8(control->fullName()) : "");
}

// Where the user is, and what stands there: a key that changes any of it is heard. The caret of a box is left out: the
// reader of the screen follows it.
std::string stateOfUser() {
  std::string state = placeOfFocus() + " " + std::to_string(curRec) + " " + std::to_string(curItem);
  if (const Control* control = screen().activeControl()) {
    state += " " + toUtf8(control->text()) + " " + std::to_string(control->value());
  }
  return state;
}

}  // namespace

void Rules::before(const std::string& line) {
  if (first_.empty()) first_ = filesHere();
  if (line.starts_with("step ")) burst_ = line == "step 0";
  if (line == "menu mnuAGENT" || line == "menu mnuINH") otherVoice_ = true;
  const Form* active = screen().activeForm();
  // The reader of a text asks under which name it shall be kept: any name is a file then.
  if (active && active->name() == u"frmTin" && screen().loaded(u"frmHelp")) namesFile_ = true;
  line_ = line;
  place_ = placeOfFocus();
  state_ = stateOfUser();
  heard_.clear();
}

std::string Rules::brokenByFiles() {
  const Files files = filesHere();
  for (const auto& [name, bytes] : files) {
    if (isTable(name, files)) {
      if (std::string broken = brokenRecords(bytes); !broken.empty()) return broken;
    }
    if (isWorkFile(name) ? mainFormIsFree() : !isKnown(name) && !namesFile_) return "a stray file " + name;
  }
  if (manner_ == Manner::onlyLooking && !first_.empty() && files != first_) return "looking changed a file";
  return "";
}

std::string Rules::brokenBySilence() const {
  const bool menu = line_.starts_with("menu ");
  if ((!menu && !line_.starts_with("key ")) || burst_ || otherVoice_ || talkMode != kUsualLevel || !heard_.empty())
    return "";
  if (!menu && state_ == stateOfUser()) return "";
  return "silence: " + line_ + " at " + place_;
}

std::string Rules::broken() {
  std::string files = brokenByFiles();
  return files.empty() ? brokenBySilence() : files;
}

std::string Rules::brokenAtTheEnd() {
  const Files files = filesHere();
  for (const auto& [name, bytes] : files) {
    if (!isTable(name, files)) continue;
    closeAll();
    Text error;
    openTable(appDir + fromUtf8(name), error);
    if (!error.empty()) return "a table that no longer opens";
  }
  return "";
}

}  // namespace zelko::test
