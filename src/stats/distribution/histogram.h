// A histogram drawn: the frame, a tick and a bar for each class, percent lines.
#pragma once

#include <functional>
#include <vector>

#include "platform/forms/grid.h"
#include "stats/numbers/distribution.h"

namespace zelko {

struct HistogramLook {
  Text title = {};                       // above the frame
  Text full = {}, none = {};             // at the line of 100 percent, where it falls into the frame, and at the bottom
  float yScale = 1;                      // how high 100 percent stands, the frame being 1
  float xScale = 1;                      // the width of the frame
  double top = 0;                        // twips that stay free above
  std::function<Text(float)> mark = {};  // the text of a class mark; only the first and the last one carry it
};

// freq[1] to freq[edges.classes] are the counts of the classes, n all values. Clears the picture first.
void drawHistogram(PictureBox& picture, const numbers::ClassEdges& edges, const numbers::ClassCounts& freq, int n,
                   const HistogramLook& look);

// Lines of text from the left top corner down, one under the other, on a cleared picture.
void drawLines(PictureBox& picture, const std::vector<Text>& lines);

}  // namespace zelko
