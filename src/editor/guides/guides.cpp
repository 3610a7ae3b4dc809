#include "editor/guides/guides.h"

#include "editor/main/commands.h"
#include "editor/main/inputbox.h"
#include "editor/show/showcell.h"
#include "store/table/cursor.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

Guide::Guide(Form& form, const GuideType& type) : form_(form) {
  for (const GuideRow& r : type.rows) row(r);
  buttons_.push_back(std::make_unique<Button>(form_, type.returnButton, u"戻る(CR)"));
  Button& back = *buttons_.back();
  back.place = Place::newRow;
  back.onClick = [this] { goBack(); };
  buttons_.push_back(std::make_unique<Button>(form_, type.closeButton, u"消去+戻る(esc)"));
  Button& close = *buttons_.back();
  close.onClick = [this] { closeAndGoBack(); };
  close.isCancel = true;
  form_.onClose = [this] { closeAndGoBack(); };
  Narration(form_)
      .explain(type.explanation)
      .say(back, u"戻る(CR)こまんどぼたん")
      .say(close, u"消去戻る(esc)こまんどぼたん");
}

void Guide::row(const GuideRow& row) {
  buttons_.push_back(std::make_unique<Button>(form_, row.control, row.key));
  Button& button = *buttons_.back();
  button.place = Place::newRow;
  button.onClick = [this] { goBack(); };
  labels_.push_back(std::make_unique<Label>(form_, Text(row.control) + u"Label", row.label));
  labels_.back()->place = Place::sameRow;
  Narration(form_).say(button, [&row] {
    const Text prefix = row.prefix.empty() ? Text() : Text(row.prefix) + u"  ";
    return prefix + Text(row.key) + markStop + Text(row.label);
  });
}

void Guide::goBack() {
  focusInputBox();
  showCell(static_cast<float>(curRec), curItem, {}, {});
  dispAll(curItem);
}

void Guide::closeAndGoBack() {
  screen().unload(form_);
  goBack();
}

void registerGuides() {
  registerForm<frmALT>();
  registerForm<frmCTRLK>();
  registerForm<frmFUNC>();
  registerForm<frmSFUNC>();
  registerCommand(u"mnuALT", [] { form<frmALT>().show(); });
  registerCommand(u"mnuCTRL", [] { form<frmCTRLK>().show(); });
  registerCommand(u"mnuFKEY", [] { form<frmFUNC>().show(); });
  registerCommand(u"mnuSfunc", [] { form<frmSFUNC>().show(); });
}

}  // namespace zelko
