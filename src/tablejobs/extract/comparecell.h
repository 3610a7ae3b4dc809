// How a cell stands to the value of a condition.
#pragma once

#include "platform/text/text.h"

namespace zelko {

enum class Relation { unknown, greater, less, atLeast, atMost, equal, contains, lacks, like };

// ">" "<" ">=" "=>" "<=" "=<" "=" "[" "]" "|".
Relation relationOf(TextView sign);
// The five kinds that numbers can stand in.
bool isForNumbers(Relation relation);

bool numberHolds(double cell, Relation relation, double value);
// Both trimmed already; compared by code unit. A malformed pattern is a fault.
bool textHolds(TextView cell, Relation relation, TextView value);

inline constexpr int kNumberType = 0, kTextType = 1;

// 1 the relation holds, 0 it does not, -1 behind a beep where the type does not know it. Numbers are the leading
// numeric part of both, texts are trimmed.
int compareCell(TextView cell, TextView relation, TextView value, int type);

}  // namespace zelko
