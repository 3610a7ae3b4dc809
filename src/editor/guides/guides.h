// The key guides: the keys of the program as buttons to walk through by ear. A button is a place to hear, it runs
// nothing.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace zelko {

struct GuideRow {
  TextView control;  // name of the button
  TextView prefix;   // how the shift keys are said; empty for none
  TextView key;      // caption of the button
  TextView label;    // what the key does
};

// A guide form: a row a key, and the two buttons that leave it.
struct GuideType {
  TextView form, caption, explanation;
  TextView returnButton, closeButton;  // names of the buttons
  std::span<const GuideRow> rows;
};

class Guide {
 public:
  Guide(Form& form, const GuideType& type);

 private:
  void row(const GuideRow& row);
  // Back to the input box; the guide stays loaded.
  void goBack();
  // The guide is unloaded first.
  void closeAndGoBack();

  Form& form_;
  std::vector<std::unique_ptr<Button>> buttons_;
  std::vector<std::unique_ptr<Label>> labels_;
};

const GuideType& altGuide();
const GuideType& ctrlGuide();
const GuideType& functionGuide();
const GuideType& shiftFunctionGuide();

class frmALT : public Form {
 public:
  static constexpr TextView kName = u"frmALT";
  frmALT() : Form(kName, altGuide().caption) {}
  Guide guide{*this, altGuide()};
};

class frmCTRLK : public Form {
 public:
  static constexpr TextView kName = u"frmCTRLK";
  frmCTRLK() : Form(kName, ctrlGuide().caption) {}
  Guide guide{*this, ctrlGuide()};
};

class frmFUNC : public Form {
 public:
  static constexpr TextView kName = u"frmFUNC";
  frmFUNC() : Form(kName, functionGuide().caption) {}
  Guide guide{*this, functionGuide()};
};

class frmSFUNC : public Form {
 public:
  static constexpr TextView kName = u"frmSFUNC";
  frmSFUNC() : Form(kName, shiftFunctionGuide().caption) {}
  Guide guide{*this, shiftFunctionGuide()};
};

void registerGuides();

}  // namespace zelko
