#include "platform/forms/control.h"

#include <array>

#include "platform/forms/form.h"
#include "platform/host.h"
#include "platform/text/number.h"

namespace zelko {

TextView kindName(ControlKind kind) {
  static constexpr std::array<TextView, 15> names = {u"TextBox",      u"RichTextBox",   u"Label",    u"CheckBox",
                                                     u"OptionButton", u"CommandButton", u"ComboBox", u"ListBox",
                                                     u"DriveBox",     u"FolderBox",     u"FileBox",  u"PictureBox",
                                                     u"Grid",         u"Timer",         u"Frame"};
  return names[static_cast<std::size_t>(kind)];
}

Control::Control(Form& form, ControlKind kind, TextView name, int index)
    : form_(form), kind_(kind), name_(name), index_(index) {
  form_.add(*this);
}

Control::~Control() { form_.remove(*this); }

Text Control::fullName() const {
  if (index_ < 0) return name_;
  return name_ + u"(" + decimal(index_) + u")";
}

void Control::setCaption(TextView caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  changed(Property::caption);
}

void Control::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  changed(Property::enabled);
  availabilityChanged();
}

void Control::setVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  changed(Property::visible);
  availabilityChanged();
}

void Control::availabilityChanged() {
  if (form_.active_ == this && !takesFocus()) form_.active_ = form_.nextControl(this, 1);
  if (screen().activeForm() == &form_) screen().settle();
}

void Control::setToolTip(TextView tip) {
  if (toolTip_ == tip) return;
  toolTip_ = tip;
  changed(Property::toolTip);
}

void Control::setBackColour(Colour colour) {
  if (backColour_ == colour) return;
  backColour_ = colour;
  changed(Property::colour);
}

void Control::setForeColour(Colour colour) {
  if (foreColour_ == colour) return;
  foreColour_ = colour;
  changed(Property::colour);
}

void Control::setWidth(int twips) {
  if (width_ == twips) return;
  width_ = twips;
  changed(Property::width);
}

bool Control::hasFocus() const { return screen().activeControl() == this; }

void Control::setFocus() {
  if (takesFocus()) screen().moveFocus(*this);
}

void Control::click() {
  Screen::HandlerScope scope;
  if (!enabled_ || !visible_) return;
  bool wantsFocus = takesFocus();
  setFocus();
  // A LostFocus on the way may have kept the focus, or closed the form.
  if (wantsFocus && !hasFocus()) return;
  if (form_.visible()) act();
}

void Control::doubleClick() {
  Screen::HandlerScope scope;
  if (!enabled_ || !visible_) return;
  bool wantsFocus = takesFocus();
  setFocus();
  if (wantsFocus && !hasFocus()) return;
  if (form_.visible()) actTwice();
}

void Control::act() { fire(onClick); }

void Control::actTwice() { fire(onDblClick); }

void Control::changed(Property property) {
  if (form_.loaded_) host().controlChanged(*this, property);
}

char16_t mnemonicOf(TextView caption) {
  for (std::size_t at = 0; at + 1 < caption.size(); ++at) {
    if (caption[at] != u'&') continue;
    char16_t letter = caption[++at];
    if (letter == u'&') continue;
    return letter >= u'a' && letter <= u'z' ? static_cast<char16_t>(letter - u'a' + u'A') : letter;
  }
  return 0;
}

Text withoutMarks(TextView caption) {
  Text seen;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    if (caption[at] == u'&' && at + 1 < caption.size()) ++at;
    seen += caption[at];
  }
  return seen;
}

}  // namespace zelko
