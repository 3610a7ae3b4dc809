// The calls by which a file changes, counted on their way to the system, so that a test can stop the process in front
// of one of them or let one fail.
#pragma once

namespace zelko::test {

// From here on the call of that number (from 1) ends the process with status kKilled, as if it were killed.
void dieAtCall(int number);
// From here on the call of that number fails once, with the given errno.
void failAtCall(int number, int error);
// The same for it and every later call that writes or makes a file: a disk that stays full.
void failFromCall(int number, int error);
// The write of that number, or the next one behind it, brings half of its bytes to the file, and no later one any.
void fallShortAtCall(int number);
// The read of that number fails once; reads are counted by themselves.
void failAtRead(int number);
int reads();
// Ends each of them, and gives the number of calls since.
int stopCounting();

inline constexpr int kKilled = 77;

}  // namespace zelko::test
