// The graph of an analysis as a file that a sighted colleague can use.
#pragma once

#include "platform/forms/grid.h"

namespace zelko {

// The name that a graph of that item (or of that analysis) gets at first: table and item, without an extension.
Text pictureName(TextView item);

// Asks for the name, `preset` in the folder of the reports at first. A name without an extension gives the SVG file
// and, where the host makes images, the PNG file too; with ".svg" or ".png" that one alone. What came of it is said.
void savePictureAs(const PictureBox& picture, TextView title, TextView preset);

}  // namespace zelko
