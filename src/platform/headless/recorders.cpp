#include "platform/headless/recorders.h"

#include <cstdio>
#include <initializer_list>
#include <utility>

#include "platform/text/sjis.h"

namespace zelko {
namespace {

std::string lineEndsApart(std::string_view bytes) {
  std::string shown;
  for (char byte : toUtf8(fromUtf8(bytes))) {
    if (byte == '\r' || byte == '\n')
      shown += byte == '\r' ? "\\r" : "\\n";
    else
      shown += byte;
  }
  return shown;
}

std::string places(std::initializer_list<double> values) {
  std::string shown;
  for (const double value : values) shown += (shown.empty() ? "" : " ") + shownNumber(value);
  return shown;
}

}  // namespace

std::string shownNumber(double value) {
  char digits[64];
  std::snprintf(digits, sizeof digits, "%.2f", value);
  std::string text = digits;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

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

void RecordingPrinter::begun(TextView file) {
  file_ = file;
  page_ = 1;
  announced_ = false;
}

bool RecordingPrinter::begin() {
  if (missing) return false;
  begun(u"");
  return true;
}

bool RecordingPrinter::beginFile(TextView path) {
  begun(path);
  return true;
}

void RecordingPrinter::announcePage() {
  if (!announced_) transcript_("print page " + std::to_string(page_));
  announced_ = true;
}

void RecordingPrinter::text(double x, double y, const Font& font, TextView text) {
  announcePage();
  std::string line =
      "print text " + shownNumber(x) + " " + shownNumber(y) + " " + toUtf8(font.name) + " " + shownNumber(font.size);
  if (font.bold) line += " bold";
  if (font.italic) line += " italic";
  if (font.underline) line += " underline";
  if (font.strike) line += " strike";
  transcript_(line + " " + oneLine(text));
}

void RecordingPrinter::line(double x1, double y1, double x2, double y2) {
  announcePage();
  transcript_("print line " + places({x1, y1, x2, y2}));
}

void RecordingPrinter::area(double x1, double y1, double x2, double y2, Colour) {
  announcePage();
  transcript_("print area " + places({x1, y1, x2, y2}));
}

double RecordingPrinter::textWidth(const Font& font, TextView text) {
  return static_cast<double>(sjisLength(text)) * font.size * 10;
}

void RecordingPrinter::newPage() {
  announcePage();
  ++page_;
  announced_ = false;
}

void RecordingPrinter::end() { transcript_(file_.empty() ? "print end" : "print file " + oneLine(file_)); }

void RecordingPrinter::kill() { transcript_("print kill"); }

bool RecordingSerial::write(std::string_view bytes) {
  const PortState now = state_;
  if (now != PortState::present && now != PortState::silent) return false;
  transcript_("serial " + std::to_string(port_) + " " + lineEndsApart(bytes));
  if (now == PortState::present && bytes.find('\r') != std::string_view::npos) answer_ += "\r\nOK\r\n";
  return true;
}

std::string RecordingSerial::read() { return std::exchange(answer_, {}); }

}  // namespace zelko
