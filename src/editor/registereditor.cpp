#include "editor/registereditor.h"

#include "editor/clip/clip.h"
#include "editor/formulas/formulaform.h"
#include "editor/guides/guides.h"
#include "editor/main/cellcommands.h"
#include "editor/main/form1.h"
#include "editor/main/speechmenu.h"
#include "editor/moves/commit.h"
#include "editor/moves/entryitems.h"
#include "editor/moves/jumps.h"
#include "editor/moves/moves.h"
#include "editor/ranges/range.h"
#include "editor/rewrites/rewrites.h"
#include "editor/show/itemlist.h"
#include "editor/show/showcell.h"
#include "editor/show/spitem.h"
#include "editor/show/view.h"
#include "parts/cells.h"
#include "parts/job/editorhooks.h"
#include "store/table/mainform.h"
#include "voice/cellhooks.h"

namespace zelko {

namespace {

// What the lower floors ask of the editor.
void registerHooks() {
  mainFormHooks = {showTitle, showMark, [] { reloadCur(); }};
  cellHooks = {talkCell, talkRange, showItemList};
  editorHooks.storeTyped = [](bool box) {
    if (box) commitBox();
    if (Form1* main = loadedForm<Form1>()) main->storeNames();
  };
  editorHooks.reload = [](bool keepRange) { reloadCur(keepRange ? 1 : 0); };
}

}  // namespace

void registerEditor() {
  registerHooks();
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
