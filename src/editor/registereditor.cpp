#include "editor/registereditor.h"

#include "editor/card.h"
#include "editor/cellcommands.h"
#include "editor/entryitems.h"
#include "editor/form1.h"
#include "editor/guides.h"
#include "editor/itemlist.h"
#include "editor/jumps.h"
#include "editor/sheet.h"
#include "editor/speechmenu.h"
#include "editor/spitem.h"

namespace zelko {

void registerEditor() {
  registerForm<Form1>();
  registerForm<frmSHEET>();
  registerForm<frmKOJIND>();
  registerCellCommands();
  registerEntryItems();
  registerGuides();
  registerItemList();
  registerJumps();
  registerSpeechMenu();
  registerSpItem();
}

}  // namespace zelko
