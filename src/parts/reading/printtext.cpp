#include "parts/reading/printtext.h"

#include <algorithm>
#include <map>

#include "platform/host.h"
#include "store/table/notice.h"

namespace zelko {

namespace {

constexpr double kMargin = 850;       // twips, 15 mm
constexpr double kLineSpacing = 1.2;  // of the height of the text

class Page {
 public:
  explicit Page(Printer& printer) : printer_(printer), height_(printer.textHeight(font_) * kLineSpacing) {}

  // One line of the text, in as many lines of the paper as it needs.
  void line(TextView text) {
    do {
      const std::size_t count = fitting(text);
      put(text.substr(0, count));
      text.remove_prefix(count);
    } while (!text.empty());
  }

 private:
  std::size_t fitting(TextView text) {
    const double room = printer_.pageWidth() - 2 * kMargin;
    double used = 0;
    for (std::size_t at = 0; at < text.size();) {
      const bool pair = text[at] >= 0xD800 && text[at] < 0xDC00 && at + 1 < text.size();
      const std::size_t next = at + (pair ? 2 : 1);
      used += widthOf(text.substr(at, next - at));
      if (used > room && at > 0) return at;
      at = next;
    }
    return text.size();
  }

  double widthOf(TextView character) {
    const auto [known, isNew] = widths_.try_emplace(Text(character), 0);
    if (isNew) known->second = printer_.textWidth(font_, character);
    return known->second;
  }

  void put(TextView text) {
    if (y_ + height_ > printer_.pageHeight() - kMargin) {
      printer_.newPage();
      y_ = kMargin;
    }
    if (!text.empty()) printer_.text(kMargin, y_, font_, text);
    y_ += height_;
  }

  Printer& printer_;
  Printer::Font font_;
  double height_, y_ = kMargin;
  std::map<Text, double> widths_;
};

}  // namespace

bool printText(TextView text) {
  Printer& printer = host().printer();
  if (!printer.begin()) {
    tellFailure(u"printerが検知されません", u"プリンタエラー");
    return false;
  }
  Page page(printer);
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(u'\n'), text.size());
    TextView line = text.substr(0, end);
    if (line.ends_with(u'\r')) line.remove_suffix(1);
    page.line(line);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  printer.end();
  return true;
}

}  // namespace zelko
