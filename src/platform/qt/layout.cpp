#include "platform/qt/layout.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <algorithm>

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/qt/view.h"

namespace zelko {

namespace {

bool isInvisible(const Control& control) {
  if (control.kind() == ControlKind::timer) return true;
  const bool box = control.kind() == ControlKind::textBox || control.kind() == ControlKind::richTextBox;
  return box && static_cast<const TextBox&>(control).invisible;
}

bool namesAnother(const Form& form, const Control& label) {
  const auto& all = form.controls();
  const auto firstNamed = [&](const Control* c) { return c->labelledBy == &label && !isInvisible(*c); };
  return std::any_of(all.begin(), all.end(), firstNamed);
}

const Control* frameOf(const Control& control) {
  return control.kind() == ControlKind::optionButton ? static_cast<const OptionButton&>(control).frame() : nullptr;
}

bool standsInRows(const Form& form, const Control& control, const Control* frame) {
  if (isInvisible(control) || frameOf(control) != frame) return false;
  return control.kind() != ControlKind::label || control.labelledBy || !namesAnother(form, control);
}

bool joins(const LayoutRow& row, const Control& control) {
  if (control.place != Place::automatic) return control.place == Place::sameRow;
  const ControlKind kind = control.kind();
  if (kind != ControlKind::commandButton && kind != ControlKind::optionButton && kind != ControlKind::pictureBox)
    return false;
  return row.back().control->kind() == kind;
}

bool growsDown(ControlKind kind) {
  switch (kind) {
    case ControlKind::richTextBox:
    case ControlKind::listBox:
    case ControlKind::driveBox:
    case ControlKind::folderBox:
    case ControlKind::fileBox:
    case ControlKind::grid:
      return true;
    default:
      return false;
  }
}

bool growsAcross(const Control& control) {
  if (control.width() > 0) return false;
  return growsDown(control.kind()) || control.kind() == ControlKind::textBox || control.kind() == ControlKind::label ||
         control.kind() == ControlKind::frame;
}

class Page {
 public:
  Page(QWidget& page, const Form& form, const std::function<View*(const Control&)>& viewOf, int widest)
      : grid_(new QGridLayout(&page)), form_(form), viewOf_(viewOf), widest_(widest) {
    grid_->setColumnStretch(1, 1);
  }

  void place(const LayoutRow& row) {
    QHBoxLayout* line = nullptr;
    int used = 0;
    for (const LayoutCell& cell : row) {
      if (cell.control->kind() == ControlKind::frame) fillFrame(*cell.control);
      const int width = widthOf(cell);
      if (!line || used + width > widest_) {
        line = beginLine(cell);
        used = 0;
      } else if (cell.label) {
        line->addWidget(widgetOf(*cell.label));
      }
      used += width;
      line->addWidget(widgetOf(*cell.control), growsAcross(*cell.control) ? 1 : 0);
      if (growsDown(cell.control->kind())) grid_->setRowStretch(grid_->rowCount() - 1, 1);
    }
    if (line && std::none_of(row.begin(), row.end(), [](const LayoutCell& c) { return growsAcross(*c.control); }))
      line->addStretch();
  }

  // Nothing grows down: what is left of the height stays below.
  void finish() {
    for (int row = 0; row < grid_->rowCount(); ++row)
      if (grid_->rowStretch(row) > 0) return;
    grid_->setRowStretch(grid_->rowCount(), 1);
  }

 private:
  QWidget* widgetOf(const Control& control) const { return viewOf_(control)->widget; }

  int widthOf(const LayoutCell& cell) const {
    const int space = grid_->horizontalSpacing();
    return widgetOf(*cell.control)->sizeHint().width() + space +
           (cell.label ? widgetOf(*cell.label)->minimumWidth() + space : 0);
  }

  // A line of the page: a label in front stands in the column of labels, so that the controls stand below each other.
  QHBoxLayout* beginLine(const LayoutCell& first) {
    auto* line = new QHBoxLayout;
    const int row = grid_->count() == 0 ? 0 : grid_->rowCount();
    if (first.label) grid_->addWidget(widgetOf(*first.label), row, 0, Qt::AlignVCenter);
    grid_->addLayout(line, row, first.label ? 1 : 0, 1, first.label ? 1 : 2);
    return line;
  }

  void fillFrame(const Control& frame) {
    Page inside(*widgetOf(frame), form_, viewOf_, widest_);
    for (const LayoutRow& row : planRows(form_, &frame)) inside.place(row);
  }

  QGridLayout* grid_;
  const Form& form_;
  const std::function<View*(const Control&)>& viewOf_;
  int widest_;
};

}  // namespace

std::vector<LayoutRow> planRows(const Form& form, const Control* frame) {
  std::vector<LayoutRow> rows;
  std::vector<const Control*> labelsUsed;
  for (Control* control : form.controls()) {
    if (!standsInRows(form, *control, frame)) continue;
    LayoutCell cell{control->labelledBy, control};
    // A label can stand at one place only: beside the first control that it names.
    if (std::find(labelsUsed.begin(), labelsUsed.end(), cell.label) != labelsUsed.end()) cell.label = nullptr;
    if (cell.label) labelsUsed.push_back(cell.label);
    if (rows.empty() || !joins(rows.back(), *control)) rows.emplace_back();
    rows.back().push_back(cell);
  }
  return rows;
}

void layOut(QWidget& page, const Form& form, const std::function<View*(const Control&)>& viewOf, int widest) {
  Page built(page, form, viewOf, widest);
  for (const LayoutRow& row : planRows(form)) built.place(row);
  built.finish();
}

}  // namespace zelko
