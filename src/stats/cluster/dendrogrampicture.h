// The drawing of a dendrogram: leaves from left to right, levels upward, titles on top.
#pragma once

#include "platform/forms/grid.h"
#include "stats/cluster/mergewords.h"

namespace zelko {

struct DendrogramTitles {
  Text method, distance, file, when;
};

void drawDendrogram(PictureBox& picture, const MergeWords& words, const DendrogramTitles& titles);

}  // namespace zelko
