// The two forms of the manual: text by lines, and a page of HTML.
#include "files/manual/manual.h"
#include "platform/text/number.h"

namespace zelko {

namespace {

using Kind = ManualBlock::Kind;

Text escaped(TextView text) {
  Text out;
  for (const char16_t c : text) {
    if (c == u'&')
      out += u"&amp;";
    else if (c == u'<')
      out += u"&lt;";
    else if (c == u'>')
      out += u"&gt;";
    else
      out += c;
  }
  return out;
}

// What surrounds blocks of one kind that stand together.
TextView listOf(Kind kind) {
  switch (kind) {
    case Kind::item:
      return u"ul";
    case Kind::step:
      return u"ol";
    case Kind::term:
    case Kind::definition:
      return u"dl";
    default:
      return {};
  }
}

TextView elementOf(Kind kind) {
  switch (kind) {
    case Kind::chapter:
      return u"h2";
    case Kind::section:
      return u"h3";
    case Kind::item:
    case Kind::step:
      return u"li";
    case Kind::term:
      return u"dt";
    case Kind::definition:
      return u"dd";
    case Kind::paragraph:
      break;
  }
  return u"p";
}

Text contents(const std::vector<ManualBlock>& blocks) {
  Text out = u"<nav aria-label=\"目次\">\n<h2>目次</h2>\n<ol>\n";
  int chapter = 0;
  for (const ManualBlock& block : blocks) {
    if (block.kind != Kind::chapter) continue;
    out += u"<li><a href=\"#c" + decimal(++chapter) + u"\">" + escaped(block.text) + u"</a></li>\n";
  }
  return out + u"</ol>\n</nav>\n";
}

}  // namespace

Text manualText(const std::vector<ManualBlock>& blocks) {
  Text out;
  int chapter = 0, step = 0;
  for (const ManualBlock& block : blocks) {
    step = block.kind == Kind::step ? step + 1 : 0;
    if (block.kind == Kind::chapter) {
      if (chapter > 0) out += kLineEnd;
      out += u"第" + decimal(++chapter) + u"章、";
    }
    if (block.kind == Kind::step) out += decimal(step) + u"、";
    out += block.text;
    out += block.kind == Kind::term ? TextView(u"。") : TextView(kLineEnd);
  }
  return out;
}

std::string manualHtml(const std::vector<ManualBlock>& blocks) {
  Text out =
      u"<!DOCTYPE html>\n<html lang=\"ja\">\n<head>\n<meta charset=\"utf-8\">\n<title>Zelko "
      u"手引き</title>\n</head>\n<body>\n"
      u"<h1>Zelko 手引き</h1>\n" +
      contents(blocks) + u"<main>\n";
  Text list;
  int chapter = 0;
  for (const ManualBlock& block : blocks) {
    if (const TextView wanted = listOf(block.kind); wanted != list) {
      if (!list.empty()) out += u"</" + list + u">\n";
      list = wanted;
      if (!list.empty()) out += u"<" + list + u">\n";
    }
    const Text element(elementOf(block.kind));
    out += u"<" + element;
    if (block.kind == Kind::chapter) out += u" id=\"c" + decimal(++chapter) + u"\"";
    out += u">" + escaped(block.text) + u"</" + element + u">\n";
  }
  if (!list.empty()) out += u"</" + list + u">\n";
  return toUtf8(out + u"</main>\n</body>\n</html>\n");
}

}  // namespace zelko
