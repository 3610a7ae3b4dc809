#include "platform/text/printline.h"

#include "platform/text/sjis.h"

namespace zelko {
namespace {

constexpr std::size_t kZoneColumns = 14;

}  // namespace

PrintLine& PrintLine::text(TextView piece) {
  line_ += piece;
  columns_ += sjisLength(piece);
  return *this;
}

PrintLine& PrintLine::zone() { return text(Text(kZoneColumns - columns_ % kZoneColumns, u' ')); }

Text quotedField(TextView text) { return Text(u"\"").append(text) + u"\""; }

}  // namespace zelko
