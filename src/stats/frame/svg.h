// A drawing as scalable vector graphics, for other programs.
#pragma once

#include <string>

#include "platform/forms/grid.h"

namespace zelko {

inline constexpr double kCharTwips = 120, kLineTwips = 300;  // a half-width character of a drawing

struct Extent {
  double width = 0, height = 0;  // twips, from the left top corner to the far ends of what is drawn
};
Extent extentOf(const PictureBox& picture);

// A whole file, UTF-8; `title` names the picture for a reader of the screen.
std::string svgOf(const PictureBox& picture, TextView title);

}  // namespace zelko
