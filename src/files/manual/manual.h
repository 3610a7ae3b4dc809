// The manual: chapters that were written for it, and in their places the help texts, every key and every menu entry as
// the program itself has them. Heard line by line in the help menu, and a page of HTML in the package.
#pragma once

#include <string>
#include <vector>

#include "platform/text/text.h"

namespace zelko {

struct ManualBlock {
  // term: what is explained by the definition behind it. step and item: entries of a numbered and of a plain list.
  enum class Kind { chapter, section, paragraph, item, step, term, definition };
  Kind kind;
  Text text;
};

// All of it. A help text that is not in `helpFolder` (with its last slash) is left out.
std::vector<ManualBlock> manualBlocks(TextView helpFolder);

// For the reading by lines: a line a thought, chapters and steps numbered, CR LF behind each.
Text manualText(const std::vector<ManualBlock>& blocks);
// One page, UTF-8, with headings, lists and nothing else.
std::string manualHtml(const std::vector<ManualBlock>& blocks);

// What the manual says about an entry of the menu; empty where it says nothing.
Text menuExplanation(TextView name);

// "手引き" of the help menu.
void registerManual();

}  // namespace zelko
