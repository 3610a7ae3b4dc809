#include "platform/headless/replay.h"

#include <cstdio>
#include <exception>
#include <optional>
#include <utility>

#include "platform/fault.h"
#include "platform/files/files.h"
#include "platform/forms/form.h"
#include "platform/headless/player.h"

namespace zelko {
namespace {

// A line goes out at once: whoever kills the program has heard what it said until then.
Transcript linesTo(std::FILE* file) {
  return [file](std::string_view line) {
    std::fwrite(line.data(), 1, line.size(), file);
    std::fputc('\n', file);
    std::fflush(file);
  };
}

std::optional<std::string> readAll(const std::string& path) {
  std::FILE* file = path == "-" ? stdin : std::fopen(path.c_str(), "rb");
  if (!file) return std::nullopt;
  std::string bytes;
  char block[4096];
  for (std::size_t got; (got = std::fread(block, 1, sizeof block, file)) > 0;) bytes.append(block, got);
  const bool whole = std::ferror(file) == 0;
  if (file != stdin) std::fclose(file);
  return whole ? std::optional(std::move(bytes)) : std::nullopt;
}

int endWithFault(const Transcript& transcript, TextView text) {
  closeAll();
  transcript("fault " + oneLine(text));
  return kFaulted;
}

int play(HeadlessHost& host, Player& player, const ReplayOptions& options, const std::function<void()>& startProgram) {
  try {
    startProgram();
    host.idle();
    while (player.next()) {
    }
  } catch (const HeadlessHost::InputEnded&) {
  } catch (const ProgramEnd&) {
    host.print("end");
  } catch (const ScriptError& error) {
    options.complaints("line " + std::to_string(error.line) + ": " + error.reason);
    return kScriptMalformed;
  } catch (const Fault& fault) {
    return endWithFault(options.transcript, fault.text);
  } catch (const std::exception& error) {
    return endWithFault(options.transcript, fromUtf8(error.what()));
  }
  return player.expectFailed() ? kExpectFailed : kReplayed;
}

int playScript(const ReplayOptions& options, const std::function<void()>& startProgram) {
  auto bytes = readAll(options.script);
  if (!bytes) {
    options.complaints(options.script + ": can't be read");
    return kScriptMalformed;
  }
  std::vector<Action> script;
  try {
    script = parseScript(*bytes);
  } catch (const ScriptError& error) {
    options.complaints("line " + std::to_string(error.line) + ": " + error.reason);
    return kScriptMalformed;
  }
  Player* listener = nullptr;
  HeadlessHost host([&](std::string_view line) {
    options.transcript(line);
    if (listener) listener->heard(line);
  });
  Player player(host, std::move(script), options.mainForm);
  listener = &player;
  host.nextAction = [&] { return player.next(); };
  setHost(&host);
  int status = play(host, player, options, startProgram);
  screen().reset();
  setHost(nullptr);
  return status;
}

}  // namespace

int runReplay(const ReplayOptions& options, const std::function<void()>& startProgram) {
  ReplayOptions filled = options;
  if (!filled.transcript) filled.transcript = linesTo(stdout);
  if (!filled.complaints) filled.complaints = linesTo(stderr);
  return playScript(filled, startProgram);
}

}  // namespace zelko
