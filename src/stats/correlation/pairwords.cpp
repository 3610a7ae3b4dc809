#include "stats/correlation/pairwords.h"

#include "platform/text/number.h"
#include "store/table/table.h"

namespace zelko {

namespace {

Text wordOf(std::int16_t item) {
  const Text name = trimmed(itemName[static_cast<std::size_t>(item)]);
  return name.empty() ? u"項目" + decimal(item) : name;
}

}  // namespace

Text pairWords(std::int16_t item1, std::int16_t item2) { return wordOf(item1) + u"と" + wordOf(item2); }

}  // namespace zelko
