// The formulas of the keys Ctrl + keypad 3 to 9, and the form where they are registered.
#pragma once

#include <array>

#include "parts/grid/celleditor.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/grid.h"

namespace zelko {

// In the order of the keys; they live as long as the program runs.
extern std::array<Text, 7> formulaSlot;

// Evaluates the formula of the keypad digit (key code 99..105) at the cursor and puts the value into the input box; the
// commit is the user's. A key without a formula beeps. On the ID item a value that is too long for the cell is a fault.
void formulaKey(int code);

class frmFOMULA : public Form {
 public:
  static constexpr TextView kName = u"frmFOMULA";
  frmFOMULA();

  TextBox Text1{*this, u"Text1"};
  Grid Grid1{*this, u"Grid1"};  // a row for each key: the key, and what it does
  Button Command1{*this, u"Command1", u"終了(esc)"};

  // Puts "@" and the number of the item behind the formula.
  void addItem(int item);

 private:
  void frmFOMULA_KeyDown(KeyEvent& key);
  void frmFOMULA_Command1_Click();
  static CellRules cellRules();
  Text rowSentence() const;

  CellEditor cells_{Grid1, Text1, nullptr, cellRules()};
};

void registerFormulas();

}  // namespace zelko
