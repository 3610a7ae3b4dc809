// zelko-reader: reads the clipboard, or lines of a pipe, aloud.
#include <unistd.h>

#include <cctype>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>

#include "platform/text/text.h"
#include "platform/text/userlanguage.h"
#include "speech/descriptions.h"
#include "speech/dictionary.h"
#include "speech/kana.h"
#include "speech/reader.h"
#include "speech/utterance.h"
#ifdef ZELKO_READER_CLIPBOARD
#include "speech/clipboard_watch.h"
#endif

namespace {

using namespace zelko;

constexpr int kNoSource = 1;
constexpr int kWrongUse = 2;
constexpr std::chrono::seconds kLastSentence{5};

constexpr const char* kHelp =
    R"(usage: zelko-reader [--print] [--clipboard | --stdin] [--plain]
       zelko-reader --describe TEXT

Reads each new text of the clipboard aloud in Japanese, through the speech service of the desktop. A new text
replaces the one being said. "＜速さ０＞" to "＜速さ９＞" in a text set the speed and are not spoken.

  --print      print instead of speaking; for each sentence:
                 say TEXT     the sentence as it came, line ends as \n ("agent TEXT": of the talking character)
                 speed N      where a speed tag was in it, 0 to 9
                 kana TEXT    what the speech engine would be handed, cut to what is said in five minutes
  --clipboard  take the texts from the clipboard
  --stdin      take them from standard input, one a line
  --plain      take every line as it stands
  --describe   print for each character of TEXT what it is, and its codes: "学  学校のガク、まなぶ  シフトJIS ..."
  --help       print this

Without --clipboard or --stdin the clipboard is taken where there is a display, and standard input otherwise; with
--print standard input also when it is a pipe or a file.

Lines may come from "zelko --replay": of "say TEXT" and "agent TEXT" the TEXT is taken, with \n as a line end, and the
lines of other events (beep, end, fault, print, serial, FAILED, "+ FORM", "- FORM") are passed over. Any other line is
a sentence.

exit status: 0 the input ended; 1 there is neither a display nor an input; 2 wrong use
)";

constexpr const char* kHelpJapanese =
    R"(使い方: zelko-reader [--print] [--clipboard | --stdin] [--plain]
        zelko-reader --describe 文字列

クリップボードに新しい文が入るたびに、デスクトップの音声サービスを通して日本語で読み上げます。新しい文が来ると、
読んでいる文はそこで終わります。文の中の「＜速さ０＞」から「＜速さ９＞」は速さを決め、読まれません。

  --print      読み上げずに出力します。一つの文について:
                 say 文       届いたままの文。行末は \n（「agent 文」は話すキャラクタの文）
                 speed 数     その中の速さ、0から9
                 kana 文      音声エンジンに渡すかな。五分で話せる長さまで
  --clipboard  文をクリップボードから受け取ります
  --stdin      文を標準入力から受け取ります。一行が一つの文
  --plain      どの行も、書いてあるとおりの文とします
  --describe   文字列の一字ごとに、詳しい読みと文字コードを出力します:「学  学校のガク、まなぶ  シフトJIS ...」
  --help       この説明

--clipboard も --stdin もないときは、画面があればクリップボード、なければ標準入力を使います。--print のときは、標準入力が
パイプかファイルであれば、それを使います。

行は「zelko --replay」の出力でもかまいません。「say 文」と「agent 文」は文として読み（\n は行末）、ほかの出来事の行（beep、
end、fault、print、serial、FAILED、「+ 画面」、「- 画面」）は読みません。そのほかの行は、そのまま文です。

終了コード: 0 入力の終わり、1 画面も入力もない、2 使い方の間違い
)";

struct Options {
  bool print = false, clipboard = false, standardInput = false, plain = false;
};

struct Sentence {
  Text text;
  bool agent = false;
};

class Output {
 public:
  explicit Output(bool print) {
    if (!print) reader_.emplace();
  }

  void take(const Sentence& sentence) {
    if (!reader_) return print(sentence);
    if (sentence.agent)
      reader_->agent(sentence.text);
    else
      reader_->say(sentence.text);
  }

  void finish() {
    if (reader_) reader_->settled(kLastSentence);
  }

 private:
  void print(const Sentence& sentence) {
    const Utterance utterance = sentence.agent ? agentUtterance(sentence.text) : clipboardUtterance(sentence.text);
    std::cout << (sentence.agent ? "agent " : "say ") << toUtf8(oneLine(sentence.text)) << '\n';
    if (utterance.speed) std::cout << "speed " << *utterance.speed << '\n';
    std::cout << "kana " << toUtf8(kanaForSpeech(utterance.words, dictionary_, longestKana(utterance.rate)))
              << std::endl;
  }

  static Text oneLine(TextView text) {
    return replaceAll(replaceAll(replaceAll(text, u"\r\n", u"\\n"), u"\n", u"\\n"), u"\r", u"\\n");
  }

  std::optional<Reader> reader_;
  Dictionary dictionary_;
};

// The line without the word that a transcript puts in front; nothing for an event that is not spoken.
std::optional<Sentence> sentenceOf(std::string_view line, bool plain) {
  if (plain) return Sentence{fromUtf8(line)};
  const auto tail = [&](std::string_view head) {
    return replaceAll(fromUtf8(line.substr(head.size())), u"\\n", u"\n");
  };
  if (line.starts_with("say ")) return Sentence{tail("say ")};
  if (line.starts_with("agent ")) return Sentence{tail("agent "), true};
  for (std::string_view event : {"beep", "end", "say", "agent"})
    if (line == event) return std::nullopt;
  for (std::string_view event : {"fault ", "print ", "serial ", "FAILED "})
    if (line.starts_with(event)) return std::nullopt;
  const bool form = (line.starts_with("+ ") || line.starts_with("- ")) && line.size() > 2 && std::isalpha(line[2]) != 0;
  if (form) return std::nullopt;
  return Sentence{fromUtf8(line)};
}

int readLines(Output& output, bool plain) {
  for (std::string line; std::getline(std::cin, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (const std::optional<Sentence> sentence = sentenceOf(line, plain)) output.take(*sentence);
  }
  output.finish();
  return 0;
}

int readClipboard([[maybe_unused]] Output& output, [[maybe_unused]] char** argv) {
#ifdef ZELKO_READER_CLIPBOARD
  if (watchClipboard(1, argv, [&](TextView text) { output.take({Text(text)}); })) return 0;
  std::cerr << "zelko-reader: no display can be reached\n";
#else
  std::cerr << "zelko-reader: built without the clipboard\n";
#endif
  return kNoSource;
}

bool hasDisplay() {
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY"})
    if (const char* value = std::getenv(name); value != nullptr && *value != 0) return true;
  return false;
}

int run(const Options& options, char** argv) {
  const bool piped = isatty(STDIN_FILENO) == 0;
  Output output(options.print);
  if (options.standardInput) return readLines(output, options.plain);
  if (options.clipboard) return readClipboard(output, argv);
  if (options.print && piped) return readLines(output, options.plain);
  if (hasDisplay()) return readClipboard(output, argv);
  if (piped || options.print) return readLines(output, options.plain);
  std::cerr << "zelko-reader: there is no display whose clipboard could be read\n";
  return kNoSource;
}

int describe(TextView text) {
  for (std::size_t at = 0; at < text.size();) {
    const bool pair = (text[at] & 0xFC00) == 0xD800 && at + 1 < text.size();
    const TextView character = text.substr(at, pair ? 2 : 1);
    std::cout << toUtf8(character) << '\t' << toUtf8(characterDescription(character)) << '\t'
              << toUtf8(characterCode(character)) << '\n';
    at += character.size();
  }
  return 0;
}

int wrongUse(std::string_view what) {
  std::cerr << "zelko-reader: " << what << "\nTry zelko-reader --help.\n";
  return kWrongUse;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    const std::string_view option = argv[i];
    if (option == "--help") return std::cout << (userReadsJapanese() ? kHelpJapanese : kHelp), 0;
    if (option == "--describe")
      return i + 1 < argc ? describe(fromUtf8(argv[i + 1])) : wrongUse("--describe needs a text");
    if (option == "--print")
      options.print = true;
    else if (option == "--clipboard")
      options.clipboard = true;
    else if (option == "--stdin")
      options.standardInput = true;
    else if (option == "--plain")
      options.plain = true;
    else
      return wrongUse("unknown option " + std::string(option));
  }
  if (options.clipboard && options.standardInput) return wrongUse("--clipboard and --stdin exclude each other");
  return run(options, argv);
}
