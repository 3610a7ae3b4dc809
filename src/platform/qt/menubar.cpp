#include "platform/qt/menubar.h"

#include <QKeyEvent>
#include <QMenu>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <numeric>

#include "platform/qt/guard.h"
#include "platform/qt/qstring.h"

namespace zelko {

namespace {

int widthInBar(const MenuEntry& entry) {
  QMenuBar alone;
  alone.addAction(toQt(entry.caption));
  return alone.sizeHint().width();
}

// In which row each of these widths stands where no row may be wider than `limit`.
std::vector<int> rowsWithin(const std::vector<int>& widths, int limit) {
  std::vector<int> rows;
  int row = 0, used = 0;
  for (const int width : widths) {
    if (used > 0 && used + width > limit) {
      ++row;
      used = 0;
    }
    used += width;
    rows.push_back(row);
  }
  return rows;
}

// The least rows that `widest` allows, and those of much the same width.
std::vector<int> evenRows(const std::vector<int>& widths, int widest) {
  if (widths.empty()) return {};
  const std::vector<int> least = rowsWithin(widths, widest);
  const int total = std::accumulate(widths.begin(), widths.end(), 0);
  constexpr int kStep = 10;
  for (int limit = total / (least.back() + 1); limit < widest; limit += kStep) {
    std::vector<int> rows = rowsWithin(widths, limit);
    if (rows.back() == least.back()) return rows;
  }
  return least;
}

// The first or last entry that is seen.
QAction* endOf(const QMenuBar& row, bool last) {
  const QList<QAction*> all = row.actions();
  QAction* found = nullptr;
  for (QAction* action : all) {
    if (!action->isVisible()) continue;
    if (!last) return action;
    found = action;
  }
  return found;
}

}  // namespace

MenuBar::MenuBar(QWidget& place, Form& form, int widest) : form_(form) {
  fillRows(place, widest);
  refresh();
}

void MenuBar::fillRows(QWidget& place, int widest) {
  auto* below = new QVBoxLayout(&place);
  below->setContentsMargins(0, 0, 0, 0);
  below->setSpacing(0);
  std::vector<int> widths;
  for (const MenuEntry* entry : form_.menu().bar()) widths.push_back(entry->visible ? widthInBar(*entry) : 0);
  const std::vector<int> rows = evenRows(widths, widest);
  std::size_t at = 0;
  for (MenuEntry* entry : form_.menu().bar()) {
    while (static_cast<int>(rows_.size()) <= rows[at]) {
      auto* bar = new QMenuBar(&place);
      bar->setNativeMenuBar(false);
      bar->installEventFilter(this);
      below->addWidget(bar);
      rows_.push_back(bar);
    }
    addTo(*rows_.back(), *entry);
    ++at;
  }
}

bool MenuBar::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || rows_.size() < 2) return false;
  const int key = static_cast<QKeyEvent*>(event)->key();
  const auto row = std::find(rows_.begin(), rows_.end(), watched);
  if (row == rows_.end() || (key != Qt::Key_Left && key != Qt::Key_Right)) return false;
  const bool right = key == Qt::Key_Right;
  if ((*row)->activeAction() != endOf(**row, right)) return false;
  const std::size_t count = rows_.size(), at = static_cast<std::size_t>(row - rows_.begin());
  QMenuBar* next = rows_[(at + (right ? 1 : count - 1)) % count];
  QAction* action = endOf(*next, !right);
  if (!action) return false;
  // Behind the key, which a menu of this row is still looking at.
  QTimer::singleShot(0, this, [this, from = *row, next, action] {
    if (actions_.empty()) return;
    if (QAction* left = from->activeAction(); left && left->menu()) left->menu()->close();
    from->setActiveAction(nullptr);
    openFrom(*next, *action);
  });
  return true;
}

QAction* MenuBar::addTo(QWidget& parent, MenuEntry& entry) {
  QString text = entry.isSeparator() ? QString() : toQt(entry.caption);
  if (const Text shortcut = entry.shortcutText(); !shortcut.empty()) text += u'\t' + toQt(shortcut);
  auto* action = new QAction(text, &parent);
  action->setMenuRole(QAction::NoRole);
  action->setSeparator(entry.isSeparator());
  if (!entry.children.empty()) {
    auto* menu = new QMenu(&parent);
    menu->setToolTipsVisible(false);
    for (MenuEntry* child : entry.children) addTo(*menu, *child);
    action->setMenu(menu);
  }
  parent.addAction(action);
  actions_[&entry] = action;
  connectEntry(*action, entry);
  return action;
}

void MenuBar::connectEntry(QAction& action, MenuEntry& entry) {
  QObject::connect(&action, &QAction::hovered, &action, [this, &action, &entry] {
    if (entry.parent) return highlighted(entry);
    // Where the menu opens, its first entry is told, not the word of the bar above it.
    QTimer::singleShot(0, &action, [this, &action, &entry] {
      if (!actions_.empty() && !(action.menu() && action.menu()->isVisible())) highlighted(entry);
    });
  });
  if (!entry.children.empty()) return;
  // Behind the menu's own closing: a command may stay in a loop of its own for long.
  QObject::connect(&action, &QAction::triggered, &action, [this, &action, &entry] {
    QTimer::singleShot(0, &action, [this, &entry] {
      if (actions_.empty()) return;
      guarded([this, &entry] {
        if (screen().takesInput(form_)) form_.menu().choose(entry);
      });
      refresh();
    });
  });
}

void MenuBar::highlighted(const MenuEntry& entry) {
  guarded([&entry] { fire(onMenuHighlight, entry); });
}

void MenuBar::refresh() {
  for (const auto& [entry, action] : actions_) {
    action->setVisible(entry->visible);
    action->setEnabled(entry->enabled);
    if (!entry->children.empty()) continue;
    action->setCheckable(entry->checked);
    action->setChecked(entry->checked);
  }
}

void MenuBar::open(const MenuEntry& entry) {
  QAction* action = actionOf(entry);
  for (QMenuBar* row : rows_)
    if (action && row->actions().contains(action)) return openFrom(*row, *action);
}

void MenuBar::openFrom(QMenuBar& bar, QAction& action) {
  if (!action.menu()) return;
  bar.setActiveAction(&action);
  for (QAction* child : action.menu()->actions()) {
    if (!child->isVisible() || child->isSeparator()) continue;
    action.menu()->setActiveAction(child);
    return;
  }
}

void MenuBar::detach() {
  for (const auto& [entry, action] : actions_) {
    action->disconnect(action);
    if (action->menu()) action->menu()->close();
  }
  actions_.clear();
}

QAction* MenuBar::actionOf(const MenuEntry& entry) const {
  const auto found = actions_.find(&entry);
  return found == actions_.end() ? nullptr : found->second;
}

}  // namespace zelko
