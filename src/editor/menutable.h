// The menu of the main form as one table of data.
#pragma once

namespace zelko {

class Form;

// Adds all entries to the form's menu; what serves them is looked up when they are chosen.
void buildMainMenu(Form& form);

}  // namespace zelko
