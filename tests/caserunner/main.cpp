// Plays one folder of tests/cases with the program and compares what came out: zelko_cases [--record] PROGRAM FOLDER.
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "platform/text/sjis.h"
#include "platform/text/text.h"

namespace fs = std::filesystem;

namespace {

struct Case {
  fs::path folder, program;
  std::string table;
  int status = 0;
};

std::string readBytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void writeBytes(const fs::path& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

Case readCase(const fs::path& program, const fs::path& folder) {
  Case made{fs::absolute(folder), fs::absolute(program), {}, 0};
  std::istringstream script(readBytes(folder / "script.txt"));
  for (std::string line; std::getline(script, line) && line.starts_with("#");) {
    if (line.starts_with("# table ")) made.table = line.substr(8);
    if (line.starts_with("# status ")) made.status = std::atoi(line.c_str() + 9);
  }
  return made;
}

// The exit status; the transcript goes to the file.
int runProgram(const Case& played, const fs::path& folder, const fs::path& transcript) {
  std::string script = (played.folder / "script.txt").string(), place = folder.string();
  std::vector<const char*> words = {played.program.c_str(), "--replay", script.c_str(), "--dir", place.c_str()};
  if (!played.table.empty()) words.push_back(played.table.c_str());
  words.push_back(nullptr);
  pid_t child = ::fork();
  if (child == 0) {
    if (!std::freopen(transcript.c_str(), "wb", stdout) || ::chdir(place.c_str()) != 0) std::_Exit(126);
    ::execv(words[0], const_cast<char* const*>(words.data()));
    std::_Exit(127);
  }
  int status = 0;
  if (child < 0 || ::waitpid(child, &status, 0) != child) return -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

std::string hex(std::string_view bytes) {
  std::string text;
  char two[4];
  for (char byte : bytes) {
    std::snprintf(two, sizeof two, "%02X ", static_cast<unsigned char>(byte));
    text += two;
  }
  return text;
}

std::vector<std::string> lines(const std::string& bytes) {
  std::vector<std::string> all;
  for (std::size_t at = 0; at < bytes.size();) {
    std::size_t end = std::min(bytes.find('\n', at), bytes.size() - 1);
    all.push_back(bytes.substr(at, end - at + 1));
    at = end + 1;
  }
  return all;
}

void showLine(const char* mark, const std::string& line, bool sjis) {
  std::string text = sjis ? zelko::toUtf8(zelko::fromSjis(line)) : line;
  std::cout << "  " << mark << " " << text.substr(0, text.find_last_not_of("\r\n") + 1) << "\n";
  if (sjis) std::cout << "    " << hex(line) << "\n";
}

// Line by line: what stands there and what was wanted, decoded and, for a file of the program, in hex.
bool same(const std::string& name, const std::string& wanted, const std::string& found, bool sjis) {
  if (wanted == found) return true;
  std::cout << name << " differs\n";
  auto wantedLines = lines(wanted), foundLines = lines(found);
  int shown = 0;
  for (std::size_t at = 0; at < std::max(wantedLines.size(), foundLines.size()) && shown < 10; ++at) {
    bool wantedEnds = at >= wantedLines.size(), foundEnds = at >= foundLines.size();
    if (!wantedEnds && !foundEnds && wantedLines[at] == foundLines[at]) continue;
    ++shown;
    std::cout << "  line " << at + 1 << "\n";
    if (!wantedEnds) showLine("wanted", wantedLines[at], sjis);
    if (!foundEnds) showLine("found ", foundLines[at], sjis);
  }
  return false;
}

bool refused(const fs::path& name, const char* why) {
  std::cout << name.string() << " " << why << "\n";
  return false;
}

bool filesAreRight(const Case& played, const fs::path& folder) {
  bool right = true;
  std::set<fs::path> seen;
  if (fs::exists(played.folder / "after")) {
    for (const auto& entry : fs::directory_iterator(played.folder / "after")) {
      fs::path name = entry.path().filename();
      if (name.extension() == ".gone") {
        name = name.stem();
        if (fs::exists(folder / name)) right = refused(name, "should be gone");
      } else if (!fs::exists(folder / name)) {
        right = refused(name, "is missing");
      } else {
        right = same(name.string(), readBytes(entry.path()), readBytes(folder / name), true) && right;
      }
      seen.insert(name);
    }
  }
  if (!fs::exists(played.folder / "before")) return right;
  for (const auto& entry : fs::directory_iterator(played.folder / "before")) {
    fs::path name = entry.path().filename();
    if (seen.contains(name)) continue;
    right = same(name.string(), readBytes(entry.path()), readBytes(folder / name), true) && right;
  }
  return right;
}

void record(const Case& played, const fs::path& folder, const std::string& transcript) {
  writeBytes(played.folder / "expected.txt", transcript);
  fs::remove_all(played.folder / "after");
  fs::create_directory(played.folder / "after");
  std::set<fs::path> there;
  for (const auto& entry : fs::directory_iterator(folder)) {
    fs::path name = entry.path().filename();
    there.insert(name);
    fs::path before = played.folder / "before" / name;
    bool changed = !fs::exists(before) || readBytes(before) != readBytes(entry.path());
    if (changed) writeBytes(played.folder / "after" / name, readBytes(entry.path()));
  }
  if (!fs::exists(played.folder / "before")) return;
  for (const auto& entry : fs::directory_iterator(played.folder / "before")) {
    fs::path name = entry.path().filename();
    if (!there.contains(name)) writeBytes(played.folder / "after" / (name.string() + ".gone"), "");
  }
}

// The folder of a run is another one each time: a transcript calls it "~".
std::string readTranscript(const fs::path& transcript, const fs::path& folder) {
  std::string heard = readBytes(transcript);
  const std::string place = folder.string();
  for (std::size_t at; (at = heard.find(place)) != std::string::npos;) heard.replace(at, place.size(), "~");
  return heard;
}

bool play(const Case& played, bool recording) {
  std::string pattern = (fs::temp_directory_path() / "zelko-case-XXXXXX").string();
  if (!::mkdtemp(pattern.data())) return false;
  fs::path top = pattern, folder = top / "folder", transcript = top / "transcript.txt";
  fs::create_directory(folder);
  if (fs::exists(played.folder / "before")) fs::copy(played.folder / "before", folder, fs::copy_options::recursive);
  int status = runProgram(played, folder, transcript);
  std::string heard = readTranscript(transcript, folder);
  bool right = status == played.status;
  if (!right) std::cout << "exit status " << status << ", wanted " << played.status << "\n";
  if (recording) {
    record(played, folder, heard);
  } else {
    right = same("transcript", readBytes(played.folder / "expected.txt"), heard, false) && right;
    right = filesAreRight(played, folder) && right;
  }
  fs::remove_all(top);
  return right;
}

}  // namespace

int main(int count, char** words) {
  std::vector<std::string> arguments(words + 1, words + count);
  bool recording = !arguments.empty() && arguments[0] == "--record";
  if (recording) arguments.erase(arguments.begin());
  if (arguments.size() != 2 || !fs::exists(fs::path(arguments[1]) / "script.txt")) {
    std::cerr << "zelko_cases [--record] PROGRAM FOLDER\n";
    return 2;
  }
  return play(readCase(arguments[0], arguments[1]), recording) ? 0 : 1;
}
