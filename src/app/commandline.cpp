#include "app/commandline.h"

#include <filesystem>

#include "platform/text/userlanguage.h"

namespace zelko {

namespace {

constexpr const char* kUsage =
    "usage: zelko [--no-reader] [TABLE]\n"
    "       zelko --replay SCRIPT [--dir FOLDER] [TABLE]\n"
    "       zelko --manual FOLDER\n"
    "\n"
    "Opens TABLE (a data file NAME.txt with its item file KNAME.txt beside it), or the start screen.\n"
    "\n"
    "  --no-reader      does not speak by itself; another reader of the clipboard is asked for\n"
    "  --replay SCRIPT  plays a script without a screen and prints the transcript (- reads standard input)\n"
    "  --dir FOLDER     the program's folder during a replay; the current one otherwise\n"
    "  --manual FOLDER  prints the manual as a page of HTML, with the help texts of FOLDER\n"
    "  --help           this text\n"
    "  --version        the version\n"
    "  --               what follows is a table, also when it begins with -\n";

constexpr const char* kUsageJapanese =
    "使い方: zelko [--no-reader] [表]\n"
    "        zelko --replay 台本 [--dir フォルダ] [表]\n"
    "        zelko --manual フォルダ\n"
    "\n"
    "表（データファイル 名前.txt と、その隣の項目ファイル K名前.txt）を開きます。省略すると、起動画面を開きます。\n"
    "\n"
    "  --no-reader      自分では読み上げず、クリップボードを読み上げるほかのソフトに任せます\n"
    "  --replay 台本    画面なしで台本を再生し、記録を出力します（- は標準入力）\n"
    "  --dir フォルダ   再生するときのプログラムのフォルダ。省略すると、いまのフォルダ\n"
    "  --manual フォルダ  手引きを、フォルダの説明文とともに、HTMLのページとして出力します\n"
    "  --help           この説明\n"
    "  --version        版\n"
    "  --               このあとは、- で始まっていても表の名前です\n";

// Options that stand alone; false for any other argument.
bool readFlag(const std::string& argument, CommandLine& line) {
  if (argument == "--no-reader")
    line.reader = false;
  else if (argument == "--help" || argument == "-h")
    line.action = CommandLine::Action::help;
  else if (argument == "--version")
    line.action = CommandLine::Action::version;
  else if (argument == "--keep-clipboard")
    line.action = CommandLine::Action::keepClipboard;
  else
    return false;
  return true;
}

// What is opened loses the blanks at its ends, as a typed name would, and then a pair of quotes: a file whose name has
// such blanks goes between them.
void guardBlanks(CommandLine& line) {
  if (line.table.empty() || (line.table.front() != ' ' && line.table.back() != ' ')) return;
  std::error_code failed;
  if (std::filesystem::exists(std::filesystem::path(line.folder) / line.table, failed))
    line.table = '"' + line.table + '"';
}

CommandLine complaint(CommandLine line, std::string text) {
  line.action = CommandLine::Action::wrong;
  line.complaint = std::move(text);
  return line;
}

}  // namespace

const char* usage() { return userReadsJapanese() ? kUsageJapanese : kUsage; }

CommandLine readCommandLine(const std::vector<std::string>& arguments) {
  CommandLine line;
  bool options = true, tableSeen = false, replay = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    const bool optional = options && argument.size() > 1 && argument[0] == '-';
    if (optional && argument == "--") {
      options = false;
    } else if (optional && (argument == "--replay" || argument == "--dir" || argument == "--manual")) {
      if (i + 1 == arguments.size()) return complaint(line, argument + " wants a name behind it");
      if (argument == "--manual") line.action = CommandLine::Action::manual;
      replay = replay || argument == "--replay";
      (argument == "--replay" ? line.script : line.folder) = arguments[++i];
    } else if (optional && readFlag(argument, line)) {
      continue;
    } else if (optional && argument[1] == '-') {
      return complaint(line, "unknown option " + argument);
    } else if (tableSeen) {
      return complaint(line, "only one table can be named");
    } else {
      tableSeen = true;
      line.table = argument;
    }
  }
  if (replay && line.action == CommandLine::Action::run) line.action = CommandLine::Action::replay;
  if (!replay && line.action != CommandLine::Action::manual && !line.folder.empty())
    return complaint(line, "--dir goes with --replay");
  guardBlanks(line);
  return line;
}

}  // namespace zelko
