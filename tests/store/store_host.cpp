#include "store/store_host.h"

#include <utility>

#include "platform/forms/form.h"
#include "platform/headless/headless_host.h"

namespace zelko::test {

namespace {

class StoreHost : public HeadlessHost {
 public:
  StoreHost() : HeadlessHost([this](std::string_view line) { beeps += line == "beep"; }) {}
  void runModal(Form& form) override;
  bool eventWaits() override { return event != nullptr; }
  void letEventsThrough() override {
    if (event) event();
  }

  std::vector<Dialog> dialogs;
  int beeps = 0;
  bool yes = true;
  std::function<void()> event;
};

void StoreHost::runModal(Form& form) {
  const bool question = form.find(u"lblMSG") != nullptr;
  dialogs.push_back({form.caption(), form.find(question ? u"lblMSG" : u"Label1")->caption()});
  form.find(!question ? u"Command1" : yes ? u"cmdYES" : u"cmdNO")->click();
}

StoreHost& storeHost() {
  static StoreHost machine;
  return machine;
}

}  // namespace

void useStoreHost() {
  setHost(&storeHost());
  takeDialogs();
  takeBeeps();
  storeHost().yes = true;
  storeHost().event = {};
}

std::vector<Dialog> takeDialogs() { return std::exchange(storeHost().dialogs, {}); }
int takeBeeps() { return std::exchange(storeHost().beeps, 0); }
void duringEvents(std::function<void()> look) { storeHost().event = std::move(look); }
void answerQuestionsWith(bool yes) { storeHost().yes = yes; }

}  // namespace zelko::test
