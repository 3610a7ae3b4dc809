// The dendrogram: a picture for the eye, and its merges walked with the arrows for the ear.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "stats/cluster/clusterchoice.h"
#include "stats/cluster/dendrogrampicture.h"

namespace zelko {

class FrmDENDR : public Form {
 public:
  static constexpr TextView kName = u"FrmDENDR";
  FrmDENDR();

  PictureBox Picture1{*this, u"Picture1"};
  Button Command3{*this, u"Command3", u"名前の項目(&I)"};
  Button Command4{*this, u"Command4", u"図の保存(&G)"};
  Button Command2{*this, u"Command2", u"印刷(&P)"};
  Button Command1{*this, u"Command1", u"終了(esc)"};

  // Of the records from firstRecord to lastRecord.
  void take(const MergeWords& words, const DendrogramTitles& titles);

 private:
  void narrate();
  Text focusSentence() const;
  void FrmDENDR_Picture1_KeyDown(KeyEvent& key);
  void FrmDENDR_Picture1_Click();
  void goTo(int step);
  void goToBranch(bool second);
  void FrmDENDR_Command2_Click();
  void FrmDENDR_Command3_Click();
  bool readNames(int item);

  std::optional<MergeWords> words_;
  DendrogramTitles titles_;
  Text table_;  // whose records they are
  std::int32_t first_ = 1, last_ = 0;
  int step_ = 1;
};

// Draws the dendrogram and shows it, silently: the window of the report comes in front of it.
void dendr(const ClusterChoice& choice, const MergeWords& words);

}  // namespace zelko
