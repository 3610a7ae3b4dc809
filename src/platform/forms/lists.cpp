#include "platform/forms/lists.h"

#include <algorithm>

#include "platform/host.h"

namespace zelko {
namespace {

constexpr int kPage = 10;  // entries that PageUp and PageDown step over

char16_t folded(char16_t ch) {
  if (ch >= u'a' && ch <= u'z') return static_cast<char16_t>(ch - u'a' + u'A');
  if (ch >= u'ａ' && ch <= u'ｚ') return static_cast<char16_t>(ch - u'ａ' + u'Ａ');
  return ch;
}

}  // namespace

ListBox::ListBox(Form& form, TextView name, int index, ControlKind kind) : Control(form, kind, name, index) {
  tabStop = true;
}

Text ListBox::text() const { return listIndex_ < 0 ? Text() : entries_[static_cast<std::size_t>(listIndex_)]; }

void ListBox::mark(int index) {
  if (index < 0 || index >= count()) index = -1;
  if (listIndex_ == index) return;
  listIndex_ = index;
  changed(Property::listIndex);
}

void ListBox::setListIndex(int index) {
  int before = listIndex_;
  mark(index);
  if (listIndex_ != before && listIndex_ >= 0) fire(onClick);
}

void ListBox::clear() { setEntries({}); }

void ListBox::add(TextView entry) {
  entries_.emplace_back(entry);
  changed(Property::entries);
}

void ListBox::setEntries(std::vector<Text> entries) { fill(std::move(entries), -1); }

void ListBox::fill(std::vector<Text> entries, int marked) {
  entries_ = std::move(entries);
  listIndex_ = marked < count() ? marked : -1;
  changed(Property::entries);
  changed(Property::listIndex);
}

bool ListBox::keyDefault(const KeyEvent& key) {
  if (key.mask != shift::None) return false;
  int to;
  switch (key.code) {
    case key::Up:
    case key::Left:
      to = listIndex_ - 1;
      break;
    case key::Down:
    case key::Right:
      to = listIndex_ + 1;
      break;
    case key::Home:
      to = 0;
      break;
    case key::End:
      to = count() - 1;
      break;
    case key::PageUp:
      to = listIndex_ - kPage;
      break;
    case key::PageDown:
      to = listIndex_ + kPage;
      break;
    default:
      return false;
  }
  to = std::clamp(to, 0, std::max(0, count() - 1));
  if (to == listIndex_ || count() == 0) {
    host().beep();
    return true;
  }
  setListIndex(to);
  return true;
}

bool ListBox::typeDefault(char16_t ch) {
  if (ch <= u' ') return false;
  for (int step = 1; step <= count(); ++step) {
    int at = (listIndex_ + step) % count();
    const Text& entry = entries_[static_cast<std::size_t>(at)];
    if (entry.empty() || folded(entry[0]) != folded(ch)) continue;
    if (at == listIndex_) break;  // the only one: it is heard already
    setListIndex(at);
    return true;
  }
  host().beep();
  return true;
}

namespace {

bool fits(TextView name, TextView pattern) {
  std::size_t at = 0, in = 0, star = TextView::npos, resume = 0;
  while (at < name.size()) {
    if (in < pattern.size() && pattern[in] == u'*') {
      star = in++;
      resume = at;
    } else if (in < pattern.size() && (pattern[in] == u'?' || folded(pattern[in]) == folded(name[at]))) {
      ++in;
      ++at;
    } else if (star != TextView::npos) {
      in = star + 1;
      at = ++resume;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of(u'*', in) == TextView::npos;
}

}  // namespace

bool fileNameFits(TextView name, TextView patterns) {
  while (true) {
    std::size_t end = patterns.find(u';');
    TextView pattern = patterns.substr(0, end);
    while (!pattern.empty() && pattern.front() == u' ') pattern.remove_prefix(1);
    while (!pattern.empty() && pattern.back() == u' ') pattern.remove_suffix(1);
    if (pattern == u"*.*" || fits(name, pattern)) return true;
    if (end == TextView::npos) return false;
    patterns.remove_prefix(end + 1);
  }
}

}  // namespace zelko
