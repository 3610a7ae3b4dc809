// Sorting records of the open table: in their place, or into another table. The files' side of it, without a form.
#pragma once

#include <optional>

#include "parts/job/job.h"
#include "tablejobs/sort/sortrange.h"

namespace zelko {

class RecordAppender;

// The copy of the whole table that a sort by several keys leaves beside it.
inline constexpr TextView kSafetyCopy = u"zlk.$$$";

// The records of the open table, in memory; nullopt where they can't be read. Faults where the range is beyond sorting.
std::optional<SortRange> rangeInMemory(std::int32_t first, std::int32_t last);

enum class RewriteEnd;
JobEnd jobEndOf(RewriteEnd end);

// Copies the whole table to the safety copy, which replaces an older one. A copy that was stopped or failed is gone.
JobEnd makeSafetyCopy(const SortGoesOn& goesOn);

// Puts the range of the open table in order. The new file takes the place of the old one in one swap: also at a stop,
// with what is in order by then. Failed: the table is as it was.
JobEnd sortInPlace(std::int32_t first, std::int32_t last, const std::vector<SortKey>& keys, const SortGoesOn& goesOn);

// The range in order goes to the output; the open table is only read. Nothing went out where it was stopped.
JobEnd sortInto(RecordAppender& output, std::int32_t first, std::int32_t last, const std::vector<SortKey>& keys,
                const SortGoesOn& goesOn);

}  // namespace zelko
