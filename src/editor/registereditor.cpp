#include "editor/registereditor.h"

#include "editor/cellcommands.h"
#include "editor/entryitems.h"
#include "editor/guides.h"
#include "editor/itemlist.h"
#include "editor/jumps.h"
#include "editor/range.h"
#include "editor/speechmenu.h"
#include "editor/spitem.h"
#include "editor/view.h"

namespace zelko {

void registerEditor() {
  registerEditorForms();
  registerCellCommands();
  registerEntryItems();
  registerGuides();
  registerItemList();
  registerJumps();
  registerRanges();
  registerSpeechMenu();
  registerSpItem();
}

}  // namespace zelko
