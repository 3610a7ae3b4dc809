// The graph of one group, a child of frmMDIST.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/grid.h"
#include "stats/distribution/itemdistribution.h"

namespace zelko {

class GroupChart {
 public:
  // Adds title and picture to the form; the picture takes the focus.
  GroupChart(Form& form, int group, std::vector<double> values);

  PictureBox& picture() { return picture_; }
  int group() const { return group_; }
  const ValueDistribution& data() const { return data_; }

  // Other limits and another number of classes, drawn anew; the number ends at 2 and 255 (false there).
  void setLimits(double minV, double maxV, int classes);
  bool setClasses(int classes);
  // A step of the scales; false where it would be too small.
  bool stretch(float across, float down);
  // Shown small, as a tile with its title, or as the graph.
  void setIcon(bool icon);
  bool isIcon() const { return icon_; }
  void setVisible(bool visible);
  void setPlace(Place place) { title_.place = place; }

  Text title() const;    // "群3の分布"
  Text figures() const;  // N, m and SD as they stand above the graph
  Text sentence() const;
  Text scaleWords() const;
  // The class that was read last, or its neighbour; false at an end.
  bool walk(int by);
  void walkToEnd(bool last);
  Text classWords() const;

 private:
  void draw();

  int group_;
  ValueDistribution data_;
  float xScale_ = 1, yScale_ = 1;
  int walked_ = 1;
  bool icon_ = false;
  Label title_;
  PictureBox picture_;
};

}  // namespace zelko
