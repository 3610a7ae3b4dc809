// The program zelko-reader, run as a user runs it.
#include <doctest/doctest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

struct Result {
  std::string output;
  int status = -1;
};

// The program with the output of a shell command as its input. The user's own speech service is left alone.
Result runBehind(const std::string& feeder, const std::string& options) {
  const std::string command =
      feeder + " | SPEECHD_ADDRESS=unix_socket:/nonexistent " ZELKO_READER " " + options + " 2>/dev/null";
  Result result;
  FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return result;
  std::array<char, 4096> buffer{};
  while (const std::size_t count = fread(buffer.data(), 1, buffer.size(), pipe))
    result.output.append(buffer.data(), count);
  result.status = WEXITSTATUS(pclose(pipe));
  return result;
}

// `input` goes through the shell's printf.
Result run(const std::string& options, const std::string& input) {
  return runBehind("printf '" + input + "'", options);
}

// From here on, asking for a socket of the network ends the process.
void forbidNetwork() {
  sock_filter rules[] = {
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_socket, 0, 3),
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args)),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, AF_UNIX, 1, 0),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_KILL_PROCESS),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
  };
  const sock_fprog program{std::size(rules), rules};
  if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 || prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0)
    _exit(77);
}

int statusWithoutNetwork(const char* program, const std::vector<const char*>& arguments) {
  const pid_t child = fork();
  if (child == 0) {
    forbidNetwork();
    setenv("SPEECHD_ADDRESS", "inet_socket:127.0.0.1:6560", 1);
    execv(program, const_cast<char**>(arguments.data()));
    _exit(78);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return status;
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

TEST_CASE("a sentence of a megabyte is said as far as five minutes reach") {
  const Result result = runBehind("yes カ | head -n 350000 | tr -d '\\n'", "--print --stdin");
  CHECK(result.status == 0);
  CHECK(result.output.starts_with("say カカ"));
  const std::string kana = result.output.substr(result.output.find("\nkana ") + 6);
  CHECK(kana.size() < 3 * 3100);
  CHECK(kana.ends_with("カ。イカ リャク\n"));
}

TEST_CASE("no socket of the network is opened") {
  const std::string script = "echo あ | " ZELKO_READER " --stdin";
  CHECK(statusWithoutNetwork("/bin/sh", {"sh", "-c", script.c_str(), nullptr}) == 0);
  const std::string control = "exec 3<>/dev/tcp/127.0.0.1/9";
  CHECK(statusWithoutNetwork("/bin/bash", {"bash", "-c", control.c_str(), nullptr}) != 0);
}
