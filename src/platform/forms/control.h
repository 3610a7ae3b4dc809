// What every control is: a name on a form, properties that a host shows, events that a form serves.
#pragma once

#include <cstdint>
#include <functional>
#include <utility>

#include "platform/forms/keys.h"
#include "platform/text/text.h"

namespace zelko {

class Form;

enum class ControlKind {
  textBox,
  richTextBox,
  label,
  checkBox,
  optionButton,
  commandButton,
  comboBox,
  listBox,
  driveBox,
  folderBox,
  fileBox,
  pictureBox,
  grid,
  timer,
  frame,
};
// The word that a printed form shows for a kind: "TextBox", "CommandButton" and so on.
TextView kindName(ControlKind kind);

// What a host is told of when it changes.
enum class Property {
  text,
  selection,
  caption,
  value,
  enabled,
  visible,
  entries,
  listIndex,
  cells,
  drawing,
  colour,
  toolTip,
  width,
  interval
};

// 0xBBGGRR, or the colour of the desktop.
using Colour = std::int32_t;
inline constexpr Colour kDesktopColour = -1;

// How a control stands beside the one declared before it.
enum class Place { automatic, newRow, sameRow };

class Control {
 public:
  // A member of a form; `index` is that of a control array, -1 for a single control. The order of declaration
  // is the order of Tab and the order on the screen.
  Control(Form& form, ControlKind kind, TextView name, int index = -1);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Form& form() const { return form_; }
  ControlKind kind() const { return kind_; }
  const Text& name() const { return name_; }
  int index() const { return index_; }
  // "Option1(2)" for a member of a control array, else the name.
  Text fullName() const;

  // Read by name at run time by the sentences; empty or 0 where the kind has no such property.
  virtual Text text() const { return {}; }
  virtual Text caption() const { return caption_; }
  virtual int value() const { return 0; }

  void setCaption(TextView caption);
  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled);
  bool visible() const { return visible_; }
  void setVisible(bool visible);
  const Text& toolTip() const { return toolTip_; }
  void setToolTip(TextView tip);
  Colour backColour() const { return backColour_; }
  Colour foreColour() const { return foreColour_; }
  void setBackColour(Colour colour);
  void setForeColour(Colour colour);
  // Twips; 0 lets the host choose.
  int width() const { return width_; }
  void setWidth(int twips);

  // Kinds that can hold the focus; a control that is hidden or disabled cannot for the time being.
  bool takesFocus() const { return tabStop && enabled_ && visible_; }
  bool hasFocus() const;
  // Moves the focus here: LostFocus of the control that had it, then GotFocus. On a form that is not shown it
  // only becomes the control that will have it.
  void setFocus();
  // As a mouse click: takes the focus where it can, then acts.
  void click();
  void doubleClick();

  // What the control does with a key that no handler took; true when it did something.
  virtual bool keyDefault(const KeyEvent&) { return false; }
  // A character that no handler took, for hosts without native editing; true when it did something.
  virtual bool typeDefault(char16_t) { return false; }
  // The act of a click behind the focus: toggles, selects, fires onClick.
  virtual void act();
  // The act of a double click behind the focus: fires onDblClick.
  virtual void actTwice();

  bool tabStop = false;
  Place place = Place::automatic;
  // The label that names this control for a reader of the screen; the label stands beside it.
  Control* labelledBy = nullptr;
  // What it calls a control that has neither label nor caption.
  Text screenName;

  std::function<void()> onGotFocus, onLostFocus, onChange, onClick, onDblClick;
  std::function<void(KeyEvent&)> onKeyDown, onKeyUp;
  std::function<void(CharEvent&)> onKeyPress;

 protected:
  // Tells the host, where the form is loaded.
  void changed(Property property);

 private:
  void availabilityChanged();

  Form& form_;
  ControlKind kind_;
  Text name_;
  int index_;
  Text caption_, toolTip_;
  bool enabled_ = true, visible_ = true;
  Colour backColour_ = kDesktopColour, foreColour_ = kDesktopColour;
  int width_ = 0;
};

// The letter behind "&" in a caption, upper case; 0 where there is none. "&&" is the sign itself.
char16_t mnemonicOf(TextView caption);
// The caption as it is seen: without "&".
Text withoutMarks(TextView caption);

// Calls an event that may be empty.
template <class Event, class... Args>
void fire(const Event& event, Args&&... args) {
  if (event) event(std::forward<Args>(args)...);
}

}  // namespace zelko
