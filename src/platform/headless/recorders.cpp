#include "platform/headless/recorders.h"

#include <cstdio>

#include "platform/text/sjis.h"

namespace zelko {
namespace {

// At most two places behind the point, none where there are none.
std::string number(double value) {
  char digits[64];
  std::snprintf(digits, sizeof digits, "%.2f", value);
  std::string text = digits;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

}  // namespace

std::string oneLine(TextView text) {
  std::string line = toUtf8(text);
  std::size_t out = 0;
  std::string shown;
  for (std::size_t at = line.find_first_of("\r\n"); at != std::string::npos; at = line.find_first_of("\r\n", out)) {
    shown.append(line, out, at - out).append("\\n");
    out = at + (line[at] == '\r' && at + 1 < line.size() && line[at + 1] == '\n' ? 2 : 1);
  }
  if (out == 0) return line;
  return shown.append(line, out);
}

bool RecordingPrinter::begin() {
  page_ = 1;
  announced_ = false;
  return !missing;
}

void RecordingPrinter::announcePage() {
  if (!announced_) transcript_("print page " + std::to_string(page_));
  announced_ = true;
}

void RecordingPrinter::text(double x, double y, const Font& font, TextView text) {
  announcePage();
  std::string line = "print text " + number(x) + " " + number(y) + " " + toUtf8(font.name) + " " + number(font.size);
  if (font.bold) line += " bold";
  if (font.italic) line += " italic";
  if (font.underline) line += " underline";
  if (font.strike) line += " strike";
  transcript_(line + " " + oneLine(text));
}

double RecordingPrinter::textWidth(const Font& font, TextView text) {
  return static_cast<double>(sjisLength(text)) * font.size * 10;
}

void RecordingPrinter::newPage() {
  announcePage();
  ++page_;
  announced_ = false;
}

void RecordingPrinter::end() { transcript_("print end"); }

void RecordingPrinter::kill() { transcript_("print kill"); }

bool RecordingSerial::write(std::string_view bytes) {
  transcript_("serial " + std::to_string(port_) + " " + oneLine(fromUtf8(bytes)));
  return true;
}

}  // namespace zelko
