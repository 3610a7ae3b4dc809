// The button "ﾃﾞｰﾀの確認" of an analysis: before a run, how many records, blanks, words and zeros stand in each chosen
// item, and the way to the first cell concerned.
//
// A form adds it with one line among its controls, behind the choice of the items:
//   DataCheckButton Check{*this, RangeTest::bothEnds, [this] { return choice_.marked(); }};
// and its command opens the form with showAnalysisForm<F>(), which keeps the marks of a form that the check has hidden.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "stats/frame/analysis.h"

namespace zelko {

class DataCheckButton : public Button {
 public:
  // `items` are those chosen now, in the order in which they are told. The button speaks by itself: no narration of
  // the form declares it.
  DataCheckButton(Form& form, RangeTest test, std::function<std::vector<std::int16_t>()> items);

 private:
  void check();

  RangeTest test_;
  std::function<std::vector<std::int16_t>()> items_;
};

// Whether the check has hidden that form over the table that is open now, as it is designed now; asked once: the form
// is then no longer kept.
bool takeKeptForm(TextView formName);

// Opens the form, modal: as the check left it when it led to a cell, else anew.
template <class F>
void showAnalysisForm() {
  if (!takeKeptForm(F::kName)) unload<F>();
  form<F>().showModal();
}

}  // namespace zelko
