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
// At most two places behind the point, none where there are none.
std::string shownNumber(double value);

// A4; a half-width character is half as wide as the font is high, a full-width one as wide.
class RecordingPrinter : public Printer {
 public:
  explicit RecordingPrinter(Transcript transcript) : transcript_(std::move(transcript)) {}
  bool begin() override;
  bool beginFile(TextView path) override;
  void text(double x, double y, const Font& font, TextView text) override;
  void line(double x1, double y1, double x2, double y2) override;
  void area(double x1, double y1, double x2, double y2, Colour colour) override;
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

  void begun(TextView file);

  Transcript transcript_;
  Text file_;  // that the job goes to; empty for paper
  int page_ = 1;
  bool announced_ = false;
};

// What a serial port does: one that is absent or busy can't be opened, one that fails takes no byte, a silent one takes
// all and answers nothing, and one that is present has a modem that answers each line with "OK".
enum class PortState { present, absent, busy, fails, silent };

class RecordingSerial : public SerialPort {
 public:
  // `state` is looked at with every byte, and outlives the port.
  RecordingSerial(Transcript transcript, int port, const PortState& state)
      : transcript_(std::move(transcript)), port_(port), state_(state) {}
  bool write(std::string_view bytes) override;
  std::string read() override;

 private:
  Transcript transcript_;
  int port_;
  const PortState& state_;
  std::string answer_;
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
