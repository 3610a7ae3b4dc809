#include "files/manual/manual.h"

#include <optional>
#include <utility>

#include "editor/guides/guides.h"
#include "editor/main/commands.h"
#include "editor/main/menutable.h"
#include "files/manual/chapters.h"
#include "files/manual/keynames.h"
#include "parts/reading/helpform.h"
#include "parts/reading/textfile.h"
#include "platform/files/files.h"
#include "platform/forms/routing.h"
#include "voice/talk.h"

namespace zelko {

namespace {

using Kind = ManualBlock::Kind;
using Blocks = std::vector<ManualBlock>;

// The line at the head of `rest`, which loses it.
Text nextLine(Text& rest) {
  const std::size_t end = rest.find(u'\n');
  Text line = rest.substr(0, end);
  rest.erase(0, end == Text::npos ? end : end + 1);
  if (line.ends_with(u'\r')) line.pop_back();
  return line;
}

void addKeys(Blocks& blocks) {
  for (const GuideType* guide : {&altGuide(), &ctrlGuide(), &functionGuide(), &shiftFunctionGuide()}) {
    blocks.push_back({Kind::section, readableWords(guide->caption)});
    for (const GuideRow& row : guide->rows) {
      blocks.push_back({Kind::term, readableKey(row.prefix, row.key)});
      blocks.push_back({Kind::definition, readableWords(row.label)});
    }
  }
}

void addMenu(Blocks& blocks) {
  for (const MenuRow& row : menuRows()) {
    if (row.hidden) continue;
    const Text meaning = menuExplanation(row.name);
    if (row.level == 0) {
      blocks.push_back({Kind::section, readableCaption(row.caption)});
      if (!meaning.empty()) blocks.push_back({Kind::paragraph, meaning});
      continue;
    }
    const Text shortcut = row.shortcutCode ? nameOfKey(row.shortcutCode, row.shortcutMask) : Text();
    blocks.push_back({Kind::term, readableCaption(row.caption) + (shortcut.empty() ? u"" : u"、" + shortcut)});
    if (!meaning.empty()) blocks.push_back({Kind::definition, meaning});
  }
}

// Its first line is its title, which the chapter has; a line that begins with a full-width number is a section.
void addHelp(Blocks& blocks, TextView path) {
  auto text = readTextFile(findIgnoringCase(path).value_or(Text(path)));
  if (!text) return;
  nextLine(*text);
  while (!text->empty()) {
    const Text line = nextLine(*text);
    const std::size_t digits = line.find_first_not_of(u"０１２３４５６７８９");
    const bool section = digits != 0 && digits < line.size() && line[digits] == u'．';
    if (!line.empty())
      blocks.push_back({section ? Kind::section : Kind::paragraph, section ? line.substr(digits + 1) : line});
  }
}

std::optional<ManualBlock> listBlock(const Text& line) {
  if (line.starts_with(u"## ")) return ManualBlock{Kind::section, line.substr(3)};
  if (line.starts_with(u"# ")) return ManualBlock{Kind::chapter, line.substr(2)};
  if (line.starts_with(u"- ")) return ManualBlock{Kind::item, line.substr(2)};
  if (line.starts_with(u"1. ")) return ManualBlock{Kind::step, line.substr(3)};
  return std::nullopt;
}

void addLine(Blocks& blocks, const Text& line, TextView helpFolder) {
  constexpr TextView kHelp = u"@help ";
  if (line.empty()) return;
  if (line == u"@keys") return addKeys(blocks);
  if (line == u"@menu") return addMenu(blocks);
  if (line.starts_with(kHelp)) return addHelp(blocks, Text(helpFolder) + line.substr(kHelp.size()));
  if (auto block = listBlock(line)) return blocks.push_back(*std::move(block));
  if (const std::size_t colon = line.find(u" : "); colon != Text::npos) {
    blocks.push_back({Kind::term, line.substr(0, colon)});
    return blocks.push_back({Kind::definition, line.substr(colon + 3)});
  }
  blocks.push_back({Kind::paragraph, line});
}

void showManual() { showReading({u"手引き", manualText(manualBlocks(appDir))}); }

}  // namespace

Text menuExplanation(TextView name) {
  Text rest = fromUtf8(manualMenuLines());
  while (!rest.empty()) {
    const Text line = nextLine(rest);
    if (const std::size_t blank = line.find(u' '); line.substr(0, blank) == name && blank != Text::npos)
      return line.substr(blank + 1);
  }
  return {};
}

Blocks manualBlocks(TextView helpFolder) {
  Blocks blocks;
  Text rest = fromUtf8(manualChapters());
  while (!rest.empty()) addLine(blocks, nextLine(rest), helpFolder);
  return blocks;
}

void registerManual() { registerCommand(u"mnuMANUAL", showManual); }

}  // namespace zelko
