#include "platform/qt/layout.h"

#include <algorithm>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/qt/page.h"
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

bool growsDown(const Control& control) {
  switch (control.kind()) {
    case ControlKind::richTextBox:
      return isLongText(static_cast<const TextBox&>(control));
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
  switch (control.kind()) {
    case ControlKind::textBox:
    case ControlKind::richTextBox:
    case ControlKind::label:
    case ControlKind::frame:
      return true;
    default:
      return growsDown(control);
  }
}

// A short text beside a button or a picture tells what it does: the two belong together.
bool explains(const LayoutCell& text, const LayoutCell& before) {
  const ControlKind kind = before.control->kind();
  return text.control->kind() == ControlKind::label && !before.label &&
         (kind == ControlKind::commandButton || kind == ControlKind::pictureBox);
}

class Page {
 public:
  Page(QWidget& page, const Form& form, const std::function<View*(const Control&)>& viewOf, int widest)
      : layout_(new PageLayout(&page, widest)), form_(form), viewOf_(viewOf), widest_(widest) {}

  // A label stands in front of its control, but behind its picture.
  void place(const LayoutRow& row) {
    std::vector<PageCell> cells;
    for (std::size_t at = 0; at < row.size(); ++at) {
      const LayoutCell& cell = row[at];
      if (cell.control->kind() == ControlKind::frame) fillFrame(*cell.control);
      if (at > 0 && !cells.back().front && explains(cell, row[at - 1])) {
        cells.back() = {cells.back().widget, widgetOf(*cell.control), true, false};
        continue;
      }
      if (cell.label && cell.control->kind() == ControlKind::pictureBox) {
        cells.push_back({widgetOf(*cell.control), widgetOf(*cell.label), true, false});
        continue;
      }
      const bool lastText = cell.control->kind() != ControlKind::label || row.size() == 1;
      cells.push_back({cell.label ? widgetOf(*cell.label) : nullptr, widgetOf(*cell.control),
                       growsAcross(*cell.control) && lastText, growsDown(*cell.control)});
    }
    layout_->addRow(cells);
  }

  PageLayout& layout() const { return *layout_; }

 private:
  QWidget* widgetOf(const Control& control) const { return viewOf_(control)->widget; }

  void fillFrame(const Control& frame) {
    Page inside(*widgetOf(frame), form_, viewOf_, widest_);
    for (const LayoutRow& row : planRows(form_, &frame)) inside.place(row);
  }

  PageLayout* layout_;
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

PageLayout& layOut(QWidget& page, const Form& form, const std::function<View*(const Control&)>& viewOf, int widest) {
  Page built(page, form, viewOf, widest);
  for (const LayoutRow& row : planRows(form)) built.place(row);
  built.layout().setContentsMargins(0, 0, 0, 0);
  return built.layout();
}

}  // namespace zelko
