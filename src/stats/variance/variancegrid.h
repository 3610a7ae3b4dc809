// What the three forms of the analysis of variance share: the grid of the result, its sentence, its report, and the
// folder that goes to.
#pragma once

#include <optional>

#include "platform/forms/controls.h"
#include "platform/forms/grid.h"
#include "stats/variance/designread.h"
#include "stats/variance/variancetable.h"
#include "voice/narration.h"

namespace zelko {

class VarianceGrid {
 public:
  // Takes the handlers of grid, buttons and the form's key-down and close; `rows` the grid has at least, with its head.
  VarianceGrid(Form& form, Grid& grid, Button& report, Button& folder, Button& stop, int rows);
  VarianceGrid(const VarianceGrid&) = delete;
  VarianceGrid& operator=(const VarianceGrid&) = delete;

  void narrate(Narration& voice);
  // Before a run: the last result goes.
  void clear();
  // The result is shown and said, the focus on its grid.
  void show(VarianceResult result);
  // What came of a run that was not whole: said where nothing told it yet.
  void end(ReadEnd end);

 private:
  Text cellSentence() const;
  Text focusSentence() const;
  void moved();
  void sayResult();
  void chooseFolder();
  void writeReport();
  void leave();

  Form& form_;
  Grid& grid_;
  int leastRows_;
  std::optional<VarianceResult> result_;
  Text folder_;          // of the report: the program's own until another one is chosen
  bool chosen_ = false;  // in the folder form, whose tick holds then too
  bool ran_ = false;
  int rowBefore_ = 1;
  bool filling_ = false;
};

}  // namespace zelko
