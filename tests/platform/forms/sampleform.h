// Small forms for the tests of the model: every event of theirs is a sentence.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/lists.h"
#include "platform/host.h"

namespace zelko {

inline void tell(TextView what) { host().sayOnClipboard(what); }

inline void tellFocus(Control& control) {
  control.onGotFocus = [&control] { tell(u"in " + control.fullName()); };
  control.onLostFocus = [&control] { tell(u"out " + control.fullName()); };
}

// A box, a check box, two options, two buttons, a menu: what a dialog is made of.
class SampleForm : public Form {
 public:
  static constexpr TextView kName = u"frmSample";
  explicit SampleForm(TextView name = kName) : Form(name, u"Sample") {
    for (Control* control : controls()) tellFocus(*control);
    onActivate = [this] { tell(u"active " + this->name()); };
    ok.isDefault = true;
    cancel.isCancel = true;
    box.onChange = [this] { tell(u"text " + box.text()); };
    check.onClick = [this] { tell(check.value() ? u"checked" : u"unchecked"); };
    first.onClick = [] { tell(u"first"); };
    second.onClick = [] { tell(u"second"); };
    ok.onClick = [] { tell(u"ok"); };
    cancel.onClick = [] { tell(u"cancel"); };
    MenuEntry& file = menu().add(nullptr, u"mnuFILE", u"File(&F)");
    menu().add(&file, u"mnuSAVE", u"Save(&S)", key::letter('S'), shift::Ctrl).command = [] { tell(u"saved"); };
    menu().add(&file, u"", u"-");
    MenuEntry& more = menu().add(&file, u"mnuMORE", u"More(&M)");
    menu().add(&more, u"mnuDEEP", u"Deep(&D)").command = [] { tell(u"deep"); };
    MenuEntry& edit = menu().add(nullptr, u"mnuEDIT", u"Edit(&E)");
    menu().add(&edit, u"mnuNONE", u"Nobody(&N)", key::F1);
  }

  TextBox box{*this, u"box"};
  CheckBox check{*this, u"check", u"Check(&K)"};
  OptionButton first{*this, u"Option1", u"One", 0}, second{*this, u"Option1", u"Two", 1};
  Button ok{*this, u"ok", u"OK(&O)"}, cancel{*this, u"cancel", u"Cancel"};
};

class SampleDialog : public SampleForm {
 public:
  static constexpr TextView kName = u"frmDialog";
  SampleDialog() : SampleForm(kName) {
    cancel.onClick = [this] { screen().unload(*this); };
  }
};

}  // namespace zelko
