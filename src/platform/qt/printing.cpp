#include "platform/qt/printing.h"

#include <QFile>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPrinterInfo>

#include "platform/qt/qstring.h"
#include "platform/qt/strokes.h"

namespace zelko {

namespace {

// Every tenth of a point is a whole dot at this resolution, so that no font is rounded to another width.
constexpr int kDotsPerInch = 720;
constexpr double kTwipsPerDot = 1440.0 / kDotsPerInch;
constexpr double kLineDots = 7;  // half a point and a bit

QFont nativeFont(const Printer::Font& font) {
  QFont native(toQt(font.name));
  native.setPointSizeF(font.size);
  native.setBold(font.bold);
  native.setItalic(font.italic);
  native.setUnderline(font.underline);
  native.setStrikeOut(font.strike);
  return native;
}

QString pdfFile() { return qEnvironmentVariable("ZELKO_PRINT_PDF"); }

std::unique_ptr<QPrinter> openDevice(const QString& file = pdfFile()) {
  auto device = std::make_unique<QPrinter>();
  if (!file.isEmpty()) {
    device->setOutputFormat(QPrinter::PdfFormat);
    device->setOutputFileName(file);
  }
  device->setResolution(kDotsPerInch);
  device->setFullPage(true);
  device->setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Millimeter);
  return device;
}

}  // namespace

QPrinter& QtPrinter::device() {
  if (!device_) device_ = openDevice();
  return *device_;
}

bool QtPrinter::begin() {
  kill();
  if (pdfFile().isEmpty() && QPrinterInfo::defaultPrinter().isNull()) return false;
  device_ = openDevice();
  return device_->isValid();
}

bool QtPrinter::beginFile(TextView path) {
  kill();
  device_ = openDevice(toQt(path));
  return device_->isValid() && paints();
}

// The first page begins with the first thing on it.
bool QtPrinter::paints() { return painter_.isActive() || painter_.begin(&device()); }

void QtPrinter::text(double x, double y, const Font& font, TextView text) {
  if (!paints()) return;
  const QFont native = nativeFont(font);
  painter_.setFont(native);
  const double ascent = QFontMetricsF(native, &device()).ascent();
  painter_.drawText(QPointF(x / kTwipsPerDot, y / kTwipsPerDot + ascent), toQt(text));
}

void QtPrinter::line(double x1, double y1, double x2, double y2) {
  if (!paints()) return;
  painter_.setPen(QPen(Qt::black, kLineDots));
  painter_.drawLine(QPointF(x1, y1) / kTwipsPerDot, QPointF(x2, y2) / kTwipsPerDot);
}

void QtPrinter::area(double x1, double y1, double x2, double y2, Colour colour) {
  if (!paints()) return;
  const QRectF place = QRectF(QPointF(x1, y1) / kTwipsPerDot, QPointF(x2, y2) / kTwipsPerDot).normalized();
  painter_.fillRect(place, colourOf(colour));
}

double QtPrinter::textWidth(const Font& font, TextView text) {
  return QFontMetricsF(nativeFont(font), &device()).horizontalAdvance(toQt(text)) * kTwipsPerDot;
}

double QtPrinter::textHeight(const Font& font) {
  return QFontMetricsF(nativeFont(font), &device()).height() * kTwipsPerDot;
}

double QtPrinter::pageWidth() { return device().pageLayout().fullRect(QPageLayout::Point).width() * 20; }
double QtPrinter::pageHeight() { return device().pageLayout().fullRect(QPageLayout::Point).height() * 20; }

void QtPrinter::newPage() {
  if (paints()) device().newPage();
}

void QtPrinter::end() {
  if (painter_.isActive()) painter_.end();
  device_.reset();
}

void QtPrinter::kill() {
  if (!painter_.isActive()) return device_.reset();
  const QString file = device_->outputFileName();
  device_->abort();
  painter_.end();
  device_.reset();
  if (!file.isEmpty()) QFile::remove(file);
}

}  // namespace zelko
