// Keys and words of the guides and the menu as a text has them that is read, not heard.
#pragma once

#include "platform/text/text.h"

namespace zelko {

// "Shift+Ctrl+S" of the spoken prefix "ｼﾌﾄﾌﾟﾗｽｺﾝﾄﾛｰﾙ" and the key "S". A prefix of another kind stays, in front of the
// key.
Text readableKey(TextView prefix, TextView key);
// Half-width kana and its punctuation full-width.
Text readableWords(TextView text);
// A caption of the menu: without its marks; its letter ("(&N)") as "(N)".
Text readableCaption(TextView caption);

}  // namespace zelko
