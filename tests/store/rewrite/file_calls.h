// The calls by which a file changes, counted on their way to the system, so that a test can stop the process in front
// of one of them or let one fail.
#pragma once

namespace zelko::test {

// From here on the call of that number (from 1) ends the process with status kKilled, as if it were killed.
void dieAtCall(int number);
// From here on the call of that number fails once, with the given errno.
void failAtCall(int number, int error);
// Ends either, and gives the number of calls since.
int stopCounting();

inline constexpr int kKilled = 77;

}  // namespace zelko::test
