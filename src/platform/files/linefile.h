// Small texts that hold one value a line: settings, boards, layouts. Whole lines are values, whatever stands in them.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/files/files.h"

namespace zelko {

// All lines of a file of at most `most` bytes, Shift-JIS; ^Z ends nothing. nullopt with the error where it can't be
// read to its end.
std::optional<std::vector<Text>> readValueLines(TextView path, std::int64_t most, FileError& error);
std::optional<std::vector<Text>> readValueLines(TextView path, std::int64_t most);
// A line a value, in place of what stands there and never through a link: the old file or the new one, whatever happens
// on the way. A read-only file stays (pathAccess).
FileError writeValueLines(TextView path, const std::vector<Text>& lines);

}  // namespace zelko
