// The menu of a form as a native menu bar.
#pragma once

#include <QAction>
#include <QMenuBar>
#include <unordered_map>
#include <vector>

#include "platform/forms/form.h"

namespace zelko {

// As many rows of the bar as its entries need: none is left out where the screen is narrow or the type is large.
class MenuBar : public QObject {
 public:
  // Fills `place` from the form's menu; shortcuts are shown, never registered: keys go through the model.
  MenuBar(QWidget& place, Form& form, int widest);
  // Takes over what is checked, enabled and visible.
  void refresh();
  // Opens the menu of an entry of the bar, as Alt and its letter do.
  void open(const MenuEntry& entry);
  // The form goes.
  void detach();
  QAction* actionOf(const MenuEntry& entry) const;

  // Left and Right at the end of a row go on in the next one.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void fillRows(QWidget& place, int widest);
  QAction* addTo(QWidget& parent, MenuEntry& entry);
  void highlighted(const MenuEntry& entry);
  void connectEntry(QAction& action, MenuEntry& entry);
  void openFrom(QMenuBar& bar, QAction& action);

  Form& form_;
  std::vector<QMenuBar*> rows_;
  std::unordered_map<const MenuEntry*, QAction*> actions_;
};

}  // namespace zelko
