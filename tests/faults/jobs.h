// The table of jobs that are killed and failed: every command that writes has a row.
#pragma once

#include <string>
#include <vector>

namespace zelko::test {

// What must stand on the disk, whatever happened on the way, once the program was started again and its questions were
// answered with yes.
enum class Holds {
  whole,    // data and item file together as between two lines of the script
  records,  // each record as between two lines of the script, at its place; the item file too
  once,     // every record exactly once, in whatever order; the item file too
};

struct Job {
  const char* name;
  Holds holds;
  const char* script;  // lines of a replay on t.txt: six records of ID, name, points, remark; cursor on the first cell
  const char* output =
      "";                 // a table that the job makes: its records are those of an undisturbed run, from the first on
  const char* also = "";  // a script whose states may stand there too: a step within a command
  const char* opened = "t.txt";  // at the start of the script; empty: the start screen
};

extern const std::vector<Job> kJobs;

// The files of the folder before each job: the tables t and u, c with codes, d to be deleted, a model
// table, a clip of two records, a text to be converted.
std::vector<std::pair<std::string, std::string>> filesBefore();

}  // namespace zelko::test
