// Saving the open table under another name.
#pragma once

namespace zelko {

// mnuRESAS and its job in the output dialog.
void registerSaveAs();

}  // namespace zelko
