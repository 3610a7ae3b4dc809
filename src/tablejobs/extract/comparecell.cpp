#include "tablejobs/extract/comparecell.h"

#include "platform/host.h"
#include "platform/text/format.h"
#include "platform/text/number.h"

namespace zelko {

namespace {

struct Sign {
  TextView sign;
  Relation relation;
};

constexpr Sign kSigns[] = {
    {u">", Relation::greater}, {u"<", Relation::less},    {u">=", Relation::atLeast}, {u"=>", Relation::atLeast},
    {u"<=", Relation::atMost}, {u"=<", Relation::atMost}, {u"=", Relation::equal},    {u"[", Relation::contains},
    {u"]", Relation::lacks},   {u"|", Relation::like},
};

// `order`: below 0 where the cell comes first.
template <class Order>
bool orderHolds(Order order, Relation relation) {
  switch (relation) {
    case Relation::greater:
      return order > 0;
    case Relation::less:
      return order < 0;
    case Relation::atLeast:
      return order >= 0;
    case Relation::atMost:
      return order <= 0;
    case Relation::equal:
      return order == 0;
    default:
      return false;
  }
}

}  // namespace

Relation relationOf(TextView sign) {
  for (const Sign& known : kSigns)
    if (known.sign == sign) return known.relation;
  return Relation::unknown;
}

bool isForNumbers(Relation relation) { return relation >= Relation::greater && relation <= Relation::equal; }

bool numberHolds(double cell, Relation relation, double value) { return orderHolds(cell <=> value, relation); }

bool textHolds(TextView cell, Relation relation, TextView value) {
  switch (relation) {
    case Relation::contains:
      return contains(cell, value);
    case Relation::lacks:
      return !contains(cell, value);
    case Relation::like:
      return likeMatch(cell, value);
    default:
      return orderHolds(cell.compare(value), relation);
  }
}

int compareCell(TextView cell, TextView relation, TextView value, int type) {
  const Relation known = relationOf(relation);
  if (known == Relation::unknown || (type == kNumberType && !isForNumbers(known))) {
    host().beep();
    return -1;
  }
  const bool holds =
      type == kNumberType ? numberHolds(val(cell), known, val(value)) : textHolds(trimmed(cell), known, trimmed(value));
  return holds ? 1 : 0;
}

}  // namespace zelko
