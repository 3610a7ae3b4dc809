#include "platform/headless/show.h"

#include <cstdio>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/grid.h"
#include "platform/forms/lists.h"
#include "platform/headless/script.h"

namespace zelko {
namespace {

using Lines = std::vector<std::string>;

std::string focusName() {
  Form* form = screen().activeForm();
  if (!form) return "none";
  Control* control = form->activeControl();
  return toUtf8(form->name()) + (control ? "." + toUtf8(control->fullName()) : std::string());
}

std::string formNames() {
  std::string names;
  for (const Form* form : screen().shown()) names += " " + toUtf8(form->name());
  return names.empty() ? "" : names.substr(1);
}

bool hasText(ControlKind kind) {
  switch (kind) {
    case ControlKind::textBox:
    case ControlKind::richTextBox:
    case ControlKind::comboBox:
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

std::string textOf(const Control& control) {
  return oneLine(hasText(control.kind()) ? control.text() : control.caption());
}

std::string summary(const Control& control) {
  std::string line = toUtf8(control.fullName()) + " " + toUtf8(kindName(control.kind()));
  if (std::string text = textOf(control); !text.empty()) line += " " + text;
  if (control.kind() == ControlKind::checkBox || control.kind() == ControlKind::optionButton) {
    line += " value " + std::to_string(control.value());
  }
  if (!control.enabled()) line += " disabled";
  return line;
}

Lines formLines(const Form& form) {
  Lines lines = {"caption " + oneLine(form.caption())};
  for (const Control* control : form.controls()) {
    if (control->visible() && control->kind() != ControlKind::timer) lines.push_back(summary(*control));
  }
  return lines;
}

Lines gridLines(const Grid& grid) {
  Lines lines;
  for (int row = 0; row < grid.rows(); ++row) {
    std::string line;
    for (int col = 0; col < grid.cols(); ++col) line += (col ? " | " : "") + oneLine(grid.cell(row, col));
    lines.push_back(std::move(line));
  }
  return lines;
}

Lines listLines(const ListBox& list) {
  Lines lines;
  for (int at = 0; at < list.count(); ++at) {
    lines.push_back((at == list.listIndex() ? "> " : "") + oneLine(list.entries()[static_cast<std::size_t>(at)]));
  }
  return lines;
}

std::string strokeLine(const PictureBox::Operation& stroke) {
  static constexpr const char* names[] = {"line", "box", "filled box", "circle", "text"};
  std::string line = names[static_cast<int>(stroke.stroke)];
  bool circle = stroke.stroke == PictureBox::Stroke::circle, text = stroke.stroke == PictureBox::Stroke::text;
  char numbers[128];
  if (text) {
    std::snprintf(numbers, sizeof numbers, " %.10g %.10g", stroke.x1, stroke.y1);
  } else if (circle) {
    std::snprintf(numbers, sizeof numbers, " %.10g %.10g %.10g", stroke.x1, stroke.y1, stroke.x2);
  } else {
    std::snprintf(numbers, sizeof numbers, " %.10g %.10g %.10g %.10g", stroke.x1, stroke.y1, stroke.x2, stroke.y2);
  }
  line += numbers;
  if (stroke.colour != kDesktopColour) {
    std::snprintf(numbers, sizeof numbers, " %06X", static_cast<unsigned>(stroke.colour));
    line += numbers;
  }
  return text ? line + " " + oneLine(stroke.text) : line;
}

Lines controlLines(const Control& control) {
  switch (control.kind()) {
    case ControlKind::grid:
      return gridLines(static_cast<const Grid&>(control));
    case ControlKind::comboBox:
    case ControlKind::listBox:
    case ControlKind::driveBox:
    case ControlKind::folderBox:
    case ControlKind::fileBox:
      return listLines(static_cast<const ListBox&>(control));
    case ControlKind::pictureBox:
      break;
    default:
      return {textOf(control)};
  }
  Lines lines;
  for (const auto& stroke : static_cast<const PictureBox&>(control).operations()) lines.push_back(strokeLine(stroke));
  return lines;
}

std::string menuLine(const Text& name) {
  for (const Form* form : screen().shown()) {
    const MenuEntry* entry = form->menu().find(name);
    if (!entry) continue;
    std::string line = oneLine(entry->caption);
    if (entry->checked) line += " checked";
    if (!entry->enabled) line += " disabled";
    if (!entry->visible) line += " hidden";
    return line;
  }
  return "not there";
}

Lines linesOf(const Text& what, const HeadlessHost& host, const Text& mainForm) {
  if (what == u"focus") return {focusName()};
  if (what == u"forms") return {formNames()};
  if (what == u"clipboard") return {oneLine(host.clipboard())};
  if (what.starts_with(u"menu ")) return {menuLine(what.substr(5))};
  Form* form = screen().loaded(what == u"title" ? mainForm : what);
  if (what == u"title") return {form ? oneLine(form->caption()) : "not loaded"};
  if (form) return formLines(*form);
  Text formName, controlName;
  int index;
  if (!parseControlName(what, formName, controlName, index)) return {"not loaded"};
  form = screen().loaded(formName);
  if (!form) return {"not loaded"};
  Control* control = form->find(controlName, index);
  return control ? controlLines(*control) : Lines{"not there"};
}

}  // namespace

std::vector<std::string> stateLines(const Text& what, const HeadlessHost& host, const Text& mainForm) {
  Lines lines = linesOf(what, host, mainForm);
  if (lines.empty()) lines.emplace_back();
  std::string word = toUtf8(what);
  for (std::string& line : lines) line = line.empty() ? word : word + " " + line;
  return lines;
}

}  // namespace zelko
