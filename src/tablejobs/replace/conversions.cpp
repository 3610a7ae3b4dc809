#include "tablejobs/replace/conversions.h"

#include "platform/text/width.h"
#include "tablejobs/replace/kanatables.h"

namespace zelko {

Text converted(const Conversions& wanted, TextView cell) {
  Text text(cell);
  if (wanted.removeBlanks) text = removeBlanks(text);
  if (wanted.lowerCase) text = lowerCase(text);
  if (wanted.upperCase) text = upperCase(text);
  if (wanted.fullWidth) text = toFullWidth(text);
  if (wanted.halfWidth) text = toHalfWidth(text);
  if (wanted.fullKana) text = toFullKana(text);
  if (wanted.halfKana) text = toHalfKana(text);
  return text;
}

}  // namespace zelko
