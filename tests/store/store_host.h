// A machine that shows nothing: it counts beeps, writes every dialog down and answers it at once.
#pragma once

#include <functional>

#include "store/store_fixture.h"

namespace zelko::test {

void useStoreHost();
std::vector<Dialog> takeDialogs();
int takeBeeps();
void answerQuestionsWith(std::int16_t answer);
// Runs whenever long work lets events through.
void duringEvents(std::function<void()> look);

}  // namespace zelko::test
