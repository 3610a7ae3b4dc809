#include "editor/main/commands.h"

#include <map>

#include "platform/host.h"

namespace zelko {
namespace {

std::map<Text, std::function<void()>, std::less<>>& table() {
  static std::map<Text, std::function<void()>, std::less<>> commands;
  return commands;
}

}  // namespace

void registerCommand(TextView menuName, std::function<void()> command) { table()[Text(menuName)] = std::move(command); }

const std::function<void()>& commandOf(TextView menuName) {
  static const std::function<void()> none;
  auto found = table().find(menuName);
  return found == table().end() ? none : found->second;
}

std::vector<Text> commandNames() {
  std::vector<Text> names;
  for (const auto& [name, command] : table()) names.push_back(name);
  return names;
}

void runCommand(TextView menuName) {
  // A copy: a command may register another in its place while it runs.
  std::function<void()> command = commandOf(menuName);
  if (!command) return host().beep();
  command();
}

}  // namespace zelko
