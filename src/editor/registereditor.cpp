#include "editor/registereditor.h"

#include "editor/cellcommands.h"
#include "editor/clip.h"
#include "editor/entryitems.h"
#include "editor/fomula.h"
#include "editor/guides.h"
#include "editor/itemlist.h"
#include "editor/jumps.h"
#include "editor/range.h"
#include "editor/rewrites.h"
#include "editor/speechmenu.h"
#include "editor/spitem.h"
#include "editor/view.h"

namespace zelko {

void registerEditor() {
  registerEditorForms();
  registerCellCommands();
  registerClip();
  registerEntryItems();
  registerFormulas();
  registerGuides();
  registerItemList();
  registerJumps();
  registerRanges();
  registerRewrites();
  registerSpeechMenu();
  registerSpItem();
}

}  // namespace zelko
