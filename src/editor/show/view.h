// Entering the editor, and which of its views stands beside the main form.
#pragma once

#include <cstdint>

#include "platform/text/text.h"

namespace zelko {

// Shows the main form and the view of viewKind on the open table, with the cell of the cursor announced.
void enterEditor();
// Opens the table of that full name and enters the editor; false after a message where it could not be opened.
bool openAndEnter(TextView fullName);
// Changes viewKind and shows its form in place of the other; the main form keeps the focus.
void showView(std::int16_t kind);

// The forms of this floor, for the list of all forms.
void registerEditorForms();

}  // namespace zelko
