#include "store/store_host.h"

#include <stdexcept>
#include <utility>

#include "platform/form.h"

namespace zelko::test {

namespace {

class StoreHost : public Host {
 public:
  void formShown(Form&) override {}
  void formHidden(Form&) override {}
  void runModal(Form& form) override;
  void letEventsThrough() override {}
  void waitSeconds(double seconds) override { clock_ += seconds; }
  float dayTimer() override { return static_cast<float>(clock_); }
  DateTime now() override { return {}; }
  std::uint32_t randomBits() override { return 1; }
  void beep() override { ++beeps; }
  bool clipboardText(Text& out) override { return out.clear(), true; }
  bool clearClipboard() override { return true; }
  bool sayOnClipboard(TextView) override { return true; }
  bool setClipboard(TextView) override { return true; }
  Character& character() override { throw std::logic_error("no character here"); }
  Printer& printer() override { throw std::logic_error("no printer here"); }
  std::unique_ptr<SerialPort> openSerial(int) override { return nullptr; }

  std::vector<Dialog> dialogs;
  int beeps = 0;
  bool yes = true;

 private:
  double clock_ = 36000;
};

StoreHost& storeHost() {
  static StoreHost machine;
  return machine;
}

}  // namespace

void noteDialog(TextView title, TextView text) { storeHost().dialogs.push_back({Text(title), Text(text)}); }
bool answerIsYes() { return storeHost().yes; }

void StoreHost::runModal(Form& form) {
  const bool question = form.find(u"lblMSG") != nullptr;
  noteDialog(form.caption(), form.find(question ? u"lblMSG" : u"Label1")->caption());
  form.find(!question ? u"Command1" : yes ? u"cmdYES" : u"cmdNO")->click();
}

void useStoreHost() {
  setHost(&storeHost());
  takeDialogs();
  takeBeeps();
  storeHost().yes = true;
}

std::vector<Dialog> takeDialogs() { return std::exchange(storeHost().dialogs, {}); }
int takeBeeps() { return std::exchange(storeHost().beeps, 0); }
void answerQuestionsWith(bool yes) { storeHost().yes = yes; }

}  // namespace zelko::test
