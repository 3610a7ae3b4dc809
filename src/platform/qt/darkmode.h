// Light or dark, as the desktop is set.
#pragma once

namespace zelko {

// Where the desktop asks for dark windows and the toolkit brought light ones, sets colours of high contrast.
void followDarkMode();

}  // namespace zelko
