#include "editor/menutable.h"

#include "editor/commands.h"
#include "editor/exit.h"
#include "platform/form.h"

namespace zelko {

void buildMainMenu(Form& form) {
  registerCommand(u"mnuEND", leaveProgram);
  MenuEntry& file = form.menu().add(nullptr, u"mnuFILE", u"ﾌｧｲﾙ(&F)");
  form.menu().add(&file, u"mnuEND", u"終了(&X)").command = [] { runCommand(u"mnuEND"); };
}

}  // namespace zelko
