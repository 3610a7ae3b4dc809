#include "stats/correlation/pairwords.h"

#include "platform/text/number.h"
#include "store/table/table.h"

namespace zelko {

Text itemWord(std::int16_t item) {
  const Text name = trimmed(itemName[static_cast<std::size_t>(item)]);
  return name.empty() ? u"項目" + decimal(item) : name;
}

Text pairWords(std::int16_t item1, std::int16_t item2) { return itemWord(item1) + u"と" + itemWord(item2); }

}  // namespace zelko
