// The list of the items of a table, for looking up a number.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/lists.h"

namespace zelko {

class frmItemList : public Form {
 public:
  static constexpr TextView kName = u"frmItemList";
  frmItemList();

  Label Label1{*this, u"Label1", u""};  // the file
  ListBox List1{*this, u"List1"};
  Button Command1{*this, u"Command1", u"消去戻る(esc)"};
  Button Command2{*this, u"Command2", u"選択戻る(CR)"};

  // The number of the item that the mark stands on.
  int chosen() const { return List1.listIndex(); }

 private:
  void frmItemList_Command2_Click();
};

// One row of the list: number in four places, name in 30 bytes, alignment, width.
Text itemListRow(int item, TextView name, TextView alignment, int width);

// The list of the open table; a beep without one.
void showItemList();
// The list of the second table description, under the name of its file; for looking only.
void showOtherItemList(TextView fileName);

// A form whose boxes the list fills says how: the code that the caller left in listCaller, and what takes the number.
void registerListCaller(int code, std::function<void(int item)> fill);

void registerItemList();

}  // namespace zelko
