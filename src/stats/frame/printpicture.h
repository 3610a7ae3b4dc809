// A graph on paper.
#pragma once

#include "platform/forms/grid.h"

namespace zelko {

// One page, made smaller where it needs to be. False, and nothing told, where there is no printer.
bool printPicture(const PictureBox& picture);

}  // namespace zelko
