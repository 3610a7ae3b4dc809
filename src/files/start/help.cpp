#include "files/start/help.h"

#include <algorithm>

#include "editor/main/commands.h"
#include "files/start/helpform.h"
#include "platform/files/files.h"
#include "store/table/notice.h"
#include "voice/names.h"
#include "voice/narration.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr int kTextFile = 2;

bool movesToAnotherLine(const KeyEvent& key) {
  switch (key.code) {
    case key::Up:
    case key::Down:
    case key::PageUp:
    case key::PageDown:
      return key.mask == shift::None;
    case key::Home:
    case key::End:
      return key.mask == shift::Ctrl;
    default:
      return false;
  }
}

Text lineOfCaret(const TextBox& box) {
  const Text& text = box.content();
  const auto caret = static_cast<std::size_t>(box.selStart());
  const std::size_t before = caret == 0 ? Text::npos : text.rfind(u'\n', caret - 1);
  const std::size_t start = before == Text::npos ? 0 : before + 1;
  const Text line = text.substr(start, std::min(text.find(u'\r', start), text.size()) - start);
  return trimmed(line).empty() ? Text(u"ブランク") : line;
}

bool readLines(TextView path, Text& out) {
  if (openInput(kTextFile, path) != FileError::none) return false;
  Text line;
  bool read = true;
  while (read && !atEnd(kTextFile)) {
    read = readLine(kTextFile, line) == FileError::none;
    if (read) out += line + kLineEnd;
  }
  closeFile(kTextFile);
  return read;
}

struct HelpEntry {
  TextView menu, file;
};

constexpr HelpEntry kEntries[] = {
    {u"menuGENERAL", u"Zelkoについて.txt"},
    {u"mnuWRITE", u"ﾃｷｽﾄﾃﾞｰﾀの記入のしかた.txt"},
    {u"mnuGUIDE", u"音声案内について.txt"},
    {u"mnuREDME", u"readme.txt"},
    {u"mnuSETU", u"コードファイルを利用した置換機能について.txt"},
    {u"mnuOSETU", u"並べかえについて.txt"},
};

}  // namespace

frmHelp::frmHelp() : Form(kName, u"ﾍﾙﾌﾟ") {
  Text1.readOnly = true;
  Command1.place = Place::newRow;
  Command1.isCancel = true;
  Command1.onClick = [this] { screen().unload(*this); };
  // The box word is spelled so that the sentence does not bring the whole text with it.
  const TextView howTo = u"が表示されています。矢印ｷｰで、一行ずつ読まれます。ｼﾌﾄｷｰで全文が読まれます。escで戻ります。";
  Narration(*this)
      .explain(howTo)
      .say(Text1, [this, howTo] { return caption() + Text(howTo) + u"ﾃｷｽﾄぼっくす"; })
      .say(Command1, u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ");
  Text1.onKeyUp = [this](KeyEvent& key) { frmHelp_Text1_KeyUp(key); };
}

void frmHelp::frmHelp_Text1_KeyUp(KeyEvent& key) {
  if (movesToAnotherLine(key)) {
    if (gateOpens()) talkNow(lineOfCaret(Text1));
    return;
  }
  const bool wanted = talkMode != 0 && isRepeatKey(key);
  talkTextKey(key.code, key.mask, 0, wanted ? caption() + u"ﾃｷｽﾄﾎﾞｯｸｽ" : Text());
}

void showHelpFile(TextView name) {
  const Text path = appDir + Text(name);
  Text lines;
  if (!readLines(findIgnoringCase(path).value_or(path), lines)) {
    tellFailure(Text(name) + u"がないか、読めません。", u"ﾍﾙﾌﾟ");
    return;
  }
  unload<frmHelp>();
  frmHelp& help = form<frmHelp>();
  help.setCaption(name.substr(0, name.rfind(u'.')));
  help.Text1.setText(lines);
  help.showModal();
}

void registerHelp() {
  registerForm<frmHelp>();
  for (const HelpEntry& entry : kEntries) registerCommand(entry.menu, [&entry] { showHelpFile(entry.file); });
}

}  // namespace zelko
