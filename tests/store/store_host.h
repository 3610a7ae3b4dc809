// A machine that shows nothing: it counts beeps, writes every dialog down and answers it at once.
#pragma once

#include "store/store_fixture.h"

namespace zelko::test {

void useStoreHost();
std::vector<Dialog> takeDialogs();
int takeBeeps();
void answerQuestionsWith(bool yes);

}  // namespace zelko::test
