#include "stats/frame/svg.h"

#include <algorithm>
#include <cstdio>

#include "platform/text/sjis.h"

namespace zelko {

namespace {

using Operation = PictureBox::Operation;
using Stroke = PictureBox::Stroke;

constexpr double kEdge = 120, kFont = 220, kAscent = 200;
constexpr double kTwipsPerPoint = 20;

std::string escaped(TextView text) {
  std::string shown;
  for (const char byte : toUtf8(text)) {
    if (byte == '&') {
      shown += "&amp;";
    } else if (byte == '<') {
      shown += "&lt;";
    } else if (byte == '>') {
      shown += "&gt;";
    } else if (static_cast<unsigned char>(byte) >= ' ') {
      shown += byte;
    }
  }
  return shown;
}

std::string number(double value) {
  char digits[40];
  std::snprintf(digits, sizeof digits, "%.8g", value);
  return digits;
}

std::string attribute(const char* name, double value) { return std::string(" ") + name + "=\"" + number(value) + "\""; }

std::string attribute(const char* name, const std::string& value) {
  return std::string(" ") + name + "=\"" + value + "\"";
}

std::string ink(Colour colour) {
  if (colour == kDesktopColour) return "black";
  char digits[16];
  std::snprintf(digits, sizeof digits, "#%02x%02x%02x", colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
  return digits;
}

std::string rectangle(const Operation& o) {
  return "<rect" + attribute("x", std::min(o.x1, o.x2)) + attribute("y", std::min(o.y1, o.y2)) +
         attribute("width", std::abs(o.x2 - o.x1)) + attribute("height", std::abs(o.y2 - o.y1));
}

std::string element(const Operation& o) {
  const std::string outline = attribute("fill", "none") + attribute("stroke", ink(o.colour)) + "/>";
  switch (o.stroke) {
    case Stroke::line:
      return "<line" + attribute("x1", o.x1) + attribute("y1", o.y1) + attribute("x2", o.x2) + attribute("y2", o.y2) +
             attribute("stroke", ink(o.colour)) + "/>";
    case Stroke::box:
      return rectangle(o) + outline;
    case Stroke::filledBox:
      return rectangle(o) + attribute("fill", ink(o.colour)) + "/>";
    case Stroke::circle:
      return "<circle" + attribute("cx", o.x1) + attribute("cy", o.y1) + attribute("r", o.x2) + outline;
    case Stroke::text:
      break;
  }
  return "<text xml:space=\"preserve\"" + attribute("x", o.x1) + attribute("y", o.y1 + kAscent) +
         attribute("fill", ink(o.colour)) + ">" + escaped(o.text) + "</text>";
}

}  // namespace

Extent extentOf(const PictureBox& picture) {
  Extent extent;
  for (const Operation& o : picture.operations()) {
    double right = std::max(o.x1, o.x2), low = std::max(o.y1, o.y2);
    if (o.stroke == Stroke::circle) {
      right = o.x1 + o.x2;
      low = o.y1 + o.x2;
    } else if (o.stroke == Stroke::text) {
      right = o.x1 + kCharTwips * static_cast<double>(sjisLength(o.text));
      low = o.y1 + kLineTwips;
    }
    extent = {std::max(extent.width, right), std::max(extent.height, low)};
  }
  return extent;
}

std::string svgOf(const PictureBox& picture, TextView title) {
  const Extent extent = extentOf(picture);
  const double width = extent.width + kEdge, height = extent.height + kEdge;
  std::string svg = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"" +
                    attribute("width", number(width / kTwipsPerPoint) + "pt") +
                    attribute("height", number(height / kTwipsPerPoint) + "pt") +
                    attribute("viewBox", "0 0 " + number(width) + " " + number(height)) +
                    attribute("stroke-width", 15) + attribute("font-size", kFont) +
                    " font-family=\"'MS Gothic', IPAGothic, 'Noto Sans Mono CJK JP', monospace\">\n<title>" +
                    escaped(title) + "</title>\n<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n";
  for (const Operation& operation : picture.operations()) svg += element(operation) + "\n";
  return svg + "</svg>\n";
}

}  // namespace zelko
