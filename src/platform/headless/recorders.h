// Devices that do nothing but tell the transcript what they were asked to do.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/host.h"

namespace zelko {

// Takes one line of the transcript, UTF-8, without a line end.
using Transcript = std::function<void(std::string_view line)>;

// UTF-8 with each line end (CR LF, CR or LF) shown as "\n".
std::string oneLine(TextView text);

// A4; a half-width character is half as wide as the font is high, a full-width one as wide.
class RecordingPrinter : public Printer {
 public:
  explicit RecordingPrinter(Transcript transcript) : transcript_(std::move(transcript)) {}
  bool begin() override;
  void text(double x, double y, const Font& font, TextView text) override;
  double textWidth(const Font& font, TextView text) override;
  double textHeight(const Font& font) override { return font.size * 20; }
  double pageWidth() override { return 11906; }
  double pageHeight() override { return 16838; }
  void newPage() override;
  void end() override;
  void kill() override;
  bool missing = false;

 private:
  void announcePage();

  Transcript transcript_;
  int page_ = 1;
  bool announced_ = false;
};

class RecordingSerial : public SerialPort {
 public:
  RecordingSerial(Transcript transcript, int port) : transcript_(std::move(transcript)), port_(port) {}
  bool write(std::string_view bytes) override;
  std::string read() override { return {}; }

 private:
  Transcript transcript_;
  int port_;
};

class RecordingCharacter : public Character {
 public:
  explicit RecordingCharacter(Transcript transcript) : transcript_(std::move(transcript)) {}
  bool load(TextView) override { return true; }
  void unload() override {}
  void show() override {}
  void hide() override {}
  void stop() override {}
  void speak(TextView text) override { transcript_("agent " + oneLine(text)); }

 private:
  Transcript transcript_;
};

}  // namespace zelko
