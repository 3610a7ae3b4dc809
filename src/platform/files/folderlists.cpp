// The boxes that list what is on the disk.
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "platform/files/files.h"
#include "platform/forms/lists.h"
#include "platform/host.h"

namespace zelko {
namespace {

// Absolute, without "." and ".." and a "/" at the end.
Text cleanPath(TextView path) {
  Text whole = path.starts_with(u'/') ? Text(path) : currentFolder() + Text(path);
  std::vector<TextView> steps;
  TextView rest = whole;
  while (!rest.empty()) {
    std::size_t end = std::min(rest.find(u'/'), rest.size());
    TextView step = rest.substr(0, end);
    if (step == u"..") {
      if (!steps.empty()) steps.pop_back();
    } else if (!step.empty() && step != u".") {
      steps.push_back(step);
    }
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  Text clean;
  for (TextView step : steps) clean.append(u"/").append(step);
  return clean.empty() ? Text(u"/") : clean;
}

Text joined(const Text& folder, const Text& name) { return folder == u"/" ? u"/" + name : folder + u"/" + name; }

bool holds(const Text& folder, const Text& path) {
  if (folder == u"/" || folder == path) return true;
  return path.starts_with(folder) && path[folder.size()] == u'/';
}

// A mount point as the table of mounts writes it: a blank is "\040".
std::string unescapedMount(const std::string& field) {
  std::string path;
  for (std::size_t at = 0; at < field.size(); ++at) {
    if (field[at] == '\\' && at + 3 < field.size()) {
      path += static_cast<char>(std::strtol(field.substr(at + 1, 3).c_str(), nullptr, 8));
      at += 3;
    } else {
      path += field[at];
    }
  }
  return path;
}

std::vector<Text> drives() {
  std::vector<Text> found = {u"/"};
  if (const char* home = std::getenv("HOME"); home && *home == '/') found.push_back(cleanPath(fromUtf8(home)));
  std::ifstream mounts("/proc/self/mounts");
  for (std::string line; std::getline(mounts, line);) {
    std::istringstream fields(line);
    std::string device, point;
    fields >> device >> point;
    bool volume = point.starts_with("/media/") || point.starts_with("/mnt/") || point.starts_with("/run/media/");
    Text path = fromUtf8(unescapedMount(point));
    if (volume && std::find(found.begin(), found.end(), path) == found.end()) found.push_back(std::move(path));
  }
  return found;
}

}  // namespace

DriveBox::DriveBox(Form& form, TextView name) : ListBox(form, name, -1, ControlKind::driveBox) {
  fill(drives(), 0);
  drive_ = u"/";
}

void DriveBox::refresh() {
  std::vector<Text> found = drives();
  auto at = std::find(found.begin(), found.end(), drive_);
  int marked = at == found.end() ? 0 : static_cast<int>(at - found.begin());
  fill(std::move(found), marked);
}

void DriveBox::setDrive(TextView path) {
  Text clean = cleanPath(path);
  int best = 0;
  for (int at = 1; at < count(); ++at) {
    const Text& drive = entries()[static_cast<std::size_t>(at)];
    if (holds(drive, clean) && drive.size() > entries()[static_cast<std::size_t>(best)].size()) best = at;
  }
  choose(best);
}

void DriveBox::choose(int index) {
  if (index < 0) return;
  mark(index);
  if (drive_ == text()) return;
  drive_ = text();
  fire(onChange);
}

bool DriveBox::keyDefault(const KeyEvent& key) {
  if (!key.is(key::Enter, shift::None)) return ListBox::keyDefault(key);
  choose(listIndex());
  return true;
}

void DriveBox::actTwice() {
  choose(listIndex());
  Control::actTwice();
}

FolderBox::FolderBox(Form& form, TextView name) : ListBox(form, name, -1, ControlKind::folderBox) {}

bool FolderBox::list(const Text& path, const Text& marked) {
  auto inside = listFolder(path);
  if (!inside) return false;
  std::vector<Text> names = {u"/"}, paths = {u"/"};
  for (std::size_t at = 1; at < path.size();) {
    std::size_t end = std::min(path.find(u'/', at), path.size());
    names.push_back(path.substr(at, end - at));
    paths.push_back(path.substr(0, end));
    at = end + 1;
  }
  std::size_t mark = paths.size() - 1;
  for (const FolderEntry& entry : *inside) {
    if (!entry.folder) continue;
    names.push_back(entry.name);
    paths.push_back(joined(path, entry.name));
    if (paths.back() == marked) mark = paths.size() - 1;
  }
  path_ = path;
  paths_ = std::move(paths);
  fill(std::move(names), static_cast<int>(mark));
  return true;
}

bool FolderBox::setPath(TextView path) {
  Text clean = cleanPath(path);
  if (!list(clean, clean)) return false;
  fire(onChange);
  return true;
}

Text FolderBox::markedPath() const { return listIndex() < 0 ? path_ : paths_[static_cast<std::size_t>(listIndex())]; }

void FolderBox::refresh() {
  if (path_.empty()) return;
  Text path = path_;
  list(path, markedPath());
}

bool FolderBox::keyDefault(const KeyEvent& key) {
  if (!key.is(key::Enter, shift::None)) return ListBox::keyDefault(key);
  if (!setPath(markedPath())) host().beep();
  return true;
}

void FolderBox::actTwice() {
  if (!setPath(markedPath())) host().beep();
  Control::actTwice();
}

FileBox::FileBox(Form& form, TextView name) : ListBox(form, name, -1, ControlKind::fileBox) {}

void FileBox::setPath(TextView path) {
  path_ = cleanPath(path);
  mark(-1);
  refresh();
}

void FileBox::setPattern(TextView pattern) {
  if (pattern_ == pattern) return;
  pattern_ = pattern;
  refresh();
}

void FileBox::refresh() {
  if (path_.empty()) return;
  Text selected = fileName();
  std::vector<Text> names;
  int marked = -1;
  if (auto inside = listFolder(path_)) {
    for (FolderEntry& entry : *inside) {
      if (entry.folder || !fileNameFits(entry.name, pattern_)) continue;
      if (!selected.empty() && entry.name == selected) marked = static_cast<int>(names.size());
      names.push_back(std::move(entry.name));
    }
  }
  fill(std::move(names), marked);
}

}  // namespace zelko
