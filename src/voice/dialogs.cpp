#include "voice/dialogs.h"

#include "voice/agent.h"
#include "voice/askforms.h"
#include "voice/okforms.h"
#include "voice/progressform.h"

namespace zelko {

bool okAnswer = false;
std::int16_t msgAnswer = kCancel;
Text tinAnswer;

void showOK(TextView text, TextView title) {
  FrmOK& dialog = form<FrmOK>();
  dialog.setCaption(title);
  dialog.Label1.setCaption(text);
  dialog.showModal();
}

bool askOK(TextView text, TextView title) {
  okAnswer = false;
  frmOKCAN& dialog = form<frmOKCAN>();
  dialog.setCaption(title);
  dialog.Label1.setCaption(text);
  dialog.showModal();
  return okAnswer;
}

bool askYesNo(TextView text, TextView title) {
  msgAnswer = kCancel;
  frmCMSG& dialog = form<frmCMSG>();
  if (!title.empty()) dialog.setCaption(title);
  dialog.lblMSG.setCaption(text);
  dialog.showModal();
  return msgAnswer == kYes;
}

Text talkAsk(TextView prompt, TextView title, TextView preset) {
  tinAnswer.clear();
  frmTin& dialog = form<frmTin>();
  dialog.setCaption(title);
  dialog.Label1.setCaption(prompt);
  dialog.preset(preset);
  dialog.showModal();
  return tinAnswer;
}

void showRepeat(TextView result) {
  FrmRepeat& dialog = form<FrmRepeat>();
  dialog.result = result;
  dialog.showModal();
}

void registerVoiceForms() {
  registerForm<frmAGENT>();
  registerForm<FrmOK>();
  registerForm<frmOKCAN>();
  registerForm<frmCMSG>();
  registerForm<frmTin>();
  registerForm<FrmRepeat>();
  registerForm<frmDOE>();
}

}  // namespace zelko
