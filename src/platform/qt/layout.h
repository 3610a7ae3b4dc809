// Where the controls of a form stand: rows, in the order of their declaration.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "platform/forms/control.h"

namespace zelko {

struct View;
class PageLayout;

struct LayoutCell {
  Control* label = nullptr;  // stands to the left of the control
  Control* control = nullptr;
};
using LayoutRow = std::vector<LayoutCell>;

// The rows of a form, or with `frame` those of the options inside it. Labels that name a control stand beside it,
// buttons that follow each other share a row, and so do options; everything else begins a row unless told otherwise.
std::vector<LayoutRow> planRows(const Form& form, const Control* frame = nullptr);

// Lays the views out on `page`; a row that would be wider than `widest` pixels goes on in the next line.
PageLayout& layOut(QWidget& page, const Form& form, const std::function<View*(const Control&)>& viewOf, int widest);

}  // namespace zelko
