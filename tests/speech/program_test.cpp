// The program zelko-reader, run as a user runs it.
#include <doctest/doctest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <string>

namespace {

struct Result {
  std::string output;
  int status = -1;
};

// `input` goes through the shell's printf. The user's own speech service is left alone.
Result run(const std::string& options, const std::string& input) {
  const std::string command =
      "printf '" + input + "' | SPEECHD_ADDRESS=unix_socket:/nonexistent " ZELKO_READER " " + options + " 2>/dev/null";
  Result result;
  FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return result;
  std::array<char, 4096> buffer{};
  while (const std::size_t count = fread(buffer.data(), 1, buffer.size(), pipe))
    result.output.append(buffer.data(), count);
  result.status = WEXITSTATUS(pclose(pipe));
  return result;
}

}  // namespace

TEST_CASE("--print shows each sentence and what the engine would get") {
  const Result lines = run("--print", "３月\\n＜速さ３＞速度調整3\\n\\n-5");
  CHECK(lines.status == 0);
  CHECK(lines.output ==
        "say ３月\nkana サンガツ\nsay ＜速さ３＞速度調整3\nspeed 3\nkana ソクド チョーセイ サン\nsay \nkana \n"
        "say -5\nkana マイナス ゴ\n");
}

TEST_CASE("a transcript is read for its sentences") {
  const std::string transcript = "+ Form1 Zelko\\nsay 行1\\\\n2\\nbeep\\nagent はい\\n- Form1\\nend\\n";
  CHECK(run("--print", transcript).output == "say 行1\\n2\nkana ギョウ イチ、ニ\nagent はい\nkana ハイ\n");
  CHECK(run("--print --plain", "beep\\n").output == "say beep\nkana ビーイーイーピー\n");
}

TEST_CASE("wrong use is answered") {
  CHECK(run("--prnt", "").status == 2);
  CHECK(run("--clipboard --stdin", "").status == 2);
  CHECK(run("--help", "").status == 0);
  CHECK(run("--stdin", "あ\\n").status == 0);
}
