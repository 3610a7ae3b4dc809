// What stands on the screen for one control of the model.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "platform/forms/control.h"

namespace zelko {

class TextBox;

struct View {
  explicit View(Control& shown) : control(shown) {}

  Control& control;
  QWidget* widget = nullptr;  // null: nothing to see (a timer, a catcher of keys)

  // Takes over from the model what is its kind's own; what all kinds share is taken over by pushTo.
  std::function<void(Property)> push;
  // Only native editors: hands text, caret and selection to the model where they differ from it.
  std::function<void()> report;
  // The control goes: nothing may ask for it any more.
  std::function<void()> detach;

  bool nativeEdit() const { return static_cast<bool>(report); }
  bool delivering = false;  // an event is on its way into the editor; what it did is reported once, behind it
};

std::unique_ptr<View> makeView(Control& control, QWidget* parent);

// Shows a changed property; every one of them with pushAll.
void pushTo(View& view, Property property);
void pushAll(View& view);
// What a reader of the screen calls the control: its label, its caption, else its name.
QString accessibleNameOf(const Control& control);

// Twips of the program as pixels: 120 of them are the width of a digit, so that widths follow the font.
double pixelsPerTwip(const QWidget& widget);

// A text box that its form is made for: it shows a long text.
bool isLongText(const TextBox& box);

// A picture that stands for something to choose.
bool isTile(const QWidget& widget);

// Makers of the kinds; they set widget, push, report and detach.
void makeTextView(View& view, QWidget* parent);  // text box, rich text box
void makeListView(View& view, QWidget* parent);  // list, drive, folder and file box
void makeComboView(View& view, QWidget* parent);
void makeGridView(View& view, QWidget* parent);
void makePictureView(View& view, QWidget* parent);

}  // namespace zelko
