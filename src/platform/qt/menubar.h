// The menu of a form as a native menu bar.
#pragma once

#include <QAction>
#include <QMenuBar>
#include <unordered_map>

#include "platform/form.h"

namespace zelko {

class MenuBar {
 public:
  // Fills `bar` from the form's menu; shortcuts are shown, never registered: keys go through the model.
  MenuBar(QMenuBar& bar, Form& form);
  // Takes over what is checked, enabled and visible.
  void refresh();
  // Opens the menu of an entry of the bar, as Alt and its letter do.
  void open(const MenuEntry& entry);
  // The form goes.
  void detach();
  QAction* actionOf(const MenuEntry& entry) const;

 private:
  QAction* addTo(QWidget& parent, MenuEntry& entry);
  void highlighted(const MenuEntry& entry);
  void connectEntry(QAction& action, MenuEntry& entry);

  QMenuBar& bar_;
  Form& form_;
  std::unordered_map<const MenuEntry*, QAction*> actions_;
};

}  // namespace zelko
