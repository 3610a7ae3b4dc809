#include "platform/qt/menubar.h"

#include <QKeyEvent>
#include <QMenu>
#include <QTimer>

#include "platform/qt/guard.h"
#include "platform/qt/qstring.h"

namespace zelko {

MenuBar::MenuBar(QMenuBar& bar, Form& form) : bar_(bar), form_(form) {
  bar_.setNativeMenuBar(false);
  for (MenuEntry* entry : form_.menu().bar()) addTo(bar_, *entry);
  refresh();
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
  if (!action || !action->menu()) return;
  bar_.setActiveAction(action);
  for (QAction* child : action->menu()->actions()) {
    if (!child->isVisible() || child->isSeparator()) continue;
    action->menu()->setActiveAction(child);
    return;
  }
}

void MenuBar::detach() {
  for (const auto& [entry, action] : actions_) {
    action->disconnect();
    if (action->menu()) action->menu()->close();
  }
  actions_.clear();
}

QAction* MenuBar::actionOf(const MenuEntry& entry) const {
  const auto found = actions_.find(&entry);
  return found == actions_.end() ? nullptr : found->second;
}

}  // namespace zelko
