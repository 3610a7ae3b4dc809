// Pages on paper, or in a PDF file where the environment variable ZELKO_PRINT_PDF names one.
#pragma once

#include <QPainter>
#include <QPrinter>
#include <memory>

#include "platform/host.h"

namespace zelko {

class QtPrinter : public Printer {
 public:
  bool begin() override;
  bool beginFile(TextView path) override;
  void text(double x, double y, const Font& font, TextView text) override;
  void line(double x1, double y1, double x2, double y2) override;
  void area(double x1, double y1, double x2, double y2, Colour colour) override;
  double textWidth(const Font& font, TextView text) override;
  double textHeight(const Font& font) override;
  double pageWidth() override;
  double pageHeight() override;
  void newPage() override;
  void end() override;
  void kill() override;

 private:
  QPrinter& device();
  bool paints();

  std::unique_ptr<QPrinter> device_;
  QPainter painter_;
};

}  // namespace zelko
