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
  std::int16_t answer = kYes;
  std::function<void()> event;
};

void StoreHost::runModal(Form& form) {
  const bool question = form.find(u"lblMSG") != nullptr;
  dialogs.push_back({form.caption(), form.find(question ? u"lblMSG" : u"Label1")->caption()});
  const bool asksNo = question && answer == kNo, asksYes = question && answer == kYes;
  form.find(asksYes ? u"cmdYES" : asksNo ? u"cmdNO" : u"Command1")->click();
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
  storeHost().answer = kYes;
  storeHost().event = {};
}

std::vector<Dialog> takeDialogs() { return std::exchange(storeHost().dialogs, {}); }
int takeBeeps() { return std::exchange(storeHost().beeps, 0); }
void duringEvents(std::function<void()> look) { storeHost().event = std::move(look); }
void answerQuestionsWith(std::int16_t answer) { storeHost().answer = answer; }

}  // namespace zelko::test
