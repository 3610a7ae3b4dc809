// How a pair of items is called in a closing sentence.
#pragma once

#include <cstdint>

#include "platform/text/text.h"

namespace zelko {

// "英語"; an item without a name is "項目3".
Text itemWord(std::int16_t item);
// "英語と数学".
Text pairWords(std::int16_t item1, std::int16_t item2);

// So many pairs are told one by one, with their figures; of more only how many there were.
inline constexpr std::size_t kPairsTold = 6;

}  // namespace zelko
