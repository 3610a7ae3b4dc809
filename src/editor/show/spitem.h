// The always-displayed item: one cell of every record kept in view and within hearing.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko {

class frmSPITEM : public Form {
 public:
  static constexpr TextView kName = u"frmSPITEM";
  frmSPITEM();

  Label Label1{*this, u"Label1", u""};  // the trimmed cell
};

// Asks for the item and shows it, or turns it off where one is set.
void switchSpItem();
// Takes the cell of the current record over; part of every display of a cell.
void refreshSpItem();
// Number, ":" and name of the item; its trimmed cell. For the question about it.
Text spItemCaption();
Text spItemCell();

void registerSpItem();

}  // namespace zelko
