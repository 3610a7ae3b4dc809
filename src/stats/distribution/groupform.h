// The distributions of an item in the groups of another, a graph a group.
#pragma once

#include <memory>
#include <vector>

#include "platform/forms/form.h"
#include "stats/distribution/groupchart.h"
#include "stats/distribution/groupread.h"
#include "stats/distribution/shapewords.h"

namespace zelko {

class frmMDIST : public Form {
 public:
  static constexpr TextView kName = u"frmMDIST";
  frmMDIST();

  // Before the form is shown. `words` tell what was read; they are said when the form opens.
  void take(GroupedValues read, int valueItem, int groupItem);

 private:
  enum class Arrangement { cascade, across, down };
  void fillMenu();
  void command(MenuEntry* parent, TextView name, TextView caption, std::function<void()> action);
  void frmMDIST_KeyDown(KeyEvent& key);
  GroupChart* current();
  void arrange(Arrangement arrangement, TextView said);
  void goToChart(int by);
  void sameScale();
  void changeClasses(int by);
  void stretch(float across, float down);
  void tellIcons();
  void savePicture();
  void printCharts();
  void leave();
  Text opening() const;

  std::vector<std::unique_ptr<GroupChart>> charts_;
  std::size_t current_ = 0;
  bool cascade_ = false;
  int valueItem_ = 0, groupItem_ = 0;
  int bothBad_ = 0, groupBad_ = 0, valueBad_ = 0;
  bool opened_ = false;
  Label empty_{*this, u"Label1", u"群別度数分布"};
  ShapeKey shape_;
};

// mnuSUII: asks for the two items and shows the form.
void showGroupDistributions();

}  // namespace zelko
