#include <doctest/doctest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QPushButton>
#include <ctime>

#include "desktop/desk.h"
#include "platform/qt/layout.h"

namespace zelko {

TEST_CASE("rows follow the declaration: labels beside their boxes, buttons and options together") {
  Desk desk;
  auto& all = form<FormOfAll>();
  const auto rows = planRows(all);
  const auto names = [](const LayoutRow& row) {
    Text out;
    for (const LayoutCell& cell : row)
      out += (cell.label ? cell.label->name() + u":" : Text()) + cell.control->fullName() + u" ";
    return out;
  };
  std::vector<Text> found;
  for (const auto& row : rows) found.push_back(names(row));
  CHECK(found == std::vector<Text>{u"Label1:Text1 Label2:Text2 ", u"Label3 ", u"Rich1 ", u"Check1 ", u"Frame1 ",
                                   u"Combo1 ", u"List1 ", u"Picture1 ", u"Grid1 ", u"Command1 Command2 "});
  CHECK(names(planRows(all, &all.Frame1).at(0)) == u"Option1(0) Option1(1) ");
}

TEST_CASE("what the program changes is seen, and what the mouse does goes through the model") {
  Desk desk;
  auto& all = form<FormOfAll>();
  int clicks = 0;
  all.Check1.onClick = [&] { ++clicks; };
  all.show();
  Desk::letEventsRun();
  auto& check = static_cast<QAbstractButton&>(desk.widgetOf(all.Check1));
  check.click();
  CHECK(all.Check1.value() == 1);
  CHECK(check.isChecked());
  CHECK(all.activeControl() == &all.Check1);
  all.Check1.setValue(0);
  CHECK_FALSE(check.isChecked());
  CHECK(clicks == 2);
  all.Command1.setEnabled(false);
  CHECK_FALSE(desk.widgetOf(all.Command1).isEnabled());
  all.Label1.setCaption(u"別の名前");
  CHECK(desk.widgetOf(all.Text1).accessibleName() == "別の名前");
  CHECK(desk.widgetOf(all.Command2).accessibleDescription() == "何もせずに閉じます");
}

TEST_CASE("a list of 20,000 entries is there at once and answers arrows at once") {
  Desk desk;
  auto& all = form<FormOfAll>();
  all.show();
  all.List1.setFocus();
  // Of the processor, so that a busy machine does not count.
  const std::clock_t start = std::clock();
  for (int i = 0; i < 20'000; ++i) all.List1.add(u"ファイル" + fromUtf8(std::to_string(i)));
  Desk::letEventsRun();
  for (int i = 0; i < 100; ++i) Desk::press(Qt::Key_Down);
  CHECK(std::clock() - start < 2 * CLOCKS_PER_SEC);
  CHECK(all.List1.listIndex() == 99);
  auto& list = static_cast<QAbstractItemView&>(desk.widgetOf(all.List1));
  CHECK(list.currentIndex().row() == 99);
  CHECK(list.visualRect(list.currentIndex()).intersects(list.viewport()->rect()));
}

TEST_CASE("a form shown beside another stands below it and leaves it the focus") {
  Desk desk;
  auto& all = form<FormOfAll>();
  all.show();
  form<Dialog>().showWithoutFocus();
  Desk::letEventsRun();
  const FormWindow& above = *desk.host.windowOf(all);
  const FormWindow& below = *desk.host.windowOf(form<Dialog>());
  CHECK(below.isVisible());
  CHECK(below.y() > above.y());
  CHECK(screen().activeForm() == &all);
  CHECK(QApplication::activeWindow() == &above);
}

}  // namespace zelko
