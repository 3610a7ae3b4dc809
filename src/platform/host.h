// The one seam to the machine. A host shows the forms model and feeds it; it never decides.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "platform/forms/control.h"
#include "platform/text/daytime.h"
#include "platform/text/text.h"

namespace zelko {

class Form;
class PictureBox;
struct MenuEntry;

// Pages of text at positions in twips (1/1440 inch) from the left top corner of the page.
class Printer {
 public:
  struct Font {
    Text name = u"ＭＳ ゴシック";
    double size = 10.5;  // points
    bool bold = false, italic = false, underline = false, strike = false;
  };
  virtual ~Printer() = default;
  // False, and nothing begun, where there is no printer. Page 1 begins with the first text.
  virtual bool begin() = 0;
  // As begin(), for a PDF file of that path in place of paper; needs no printer. False where there is no way to one.
  virtual bool beginFile(TextView /*path*/) { return false; }
  virtual void text(double x, double y, const Font& font, TextView text) = 0;
  // Ink of a picture, a thin line or an area.
  virtual void line(double x1, double y1, double x2, double y2) = 0;
  virtual void area(double x1, double y1, double x2, double y2, Colour colour) = 0;
  virtual double textWidth(const Font& font, TextView text) = 0;
  virtual double textHeight(const Font& font) = 0;
  virtual double pageWidth() = 0;
  virtual double pageHeight() = 0;
  virtual void newPage() = 0;
  virtual void end() = 0;   // the job is printed
  virtual void kill() = 0;  // the job is thrown away
};

class SerialPort {
 public:
  struct Line {
    std::int32_t baud = 9600, byteSize = 8;
    std::int32_t parity = 0;    // 0 none, 1 odd, 2 even, 3 mark, 4 space
    std::int32_t stopBits = 0;  // 0 one, 1 one and a half, 2 two
  };
  static constexpr unsigned kCts = 16, kDsr = 32, kRing = 64, kRlsd = 128;  // of modemLines

  virtual ~SerialPort() = default;
  // What a device has no way to is left as it was; false where it takes no settings at all.
  virtual bool configure(const Line&) { return true; }
  // False where not all of it was taken; never waits.
  virtual bool write(std::string_view bytes) = 0;
  virtual std::string read() = 0;  // what has arrived, never waits
  // Which lines of the modem are on; nullopt where the device has none.
  virtual std::optional<unsigned> modemLines() { return std::nullopt; }
  // 1 receive queue full, 2 overrun, 4 parity, 8 frame, 16 break, 256 transmit queue full; since they were asked last.
  virtual unsigned lineErrors() { return 0; }
};

// The talking character of the second speech channel.
class Character {
 public:
  virtual ~Character() = default;
  virtual bool load(TextView file) = 0;  // "genie.acs"
  virtual void unload() = 0;
  virtual void show() = 0;
  virtual void hide() = 0;
  virtual void stop() = 0;
  virtual void speak(TextView text) = 0;
};

class Host {
 public:
  virtual ~Host() = default;

  // The model changed; a host that shows nothing ignores these.
  virtual void formShown(Form& form) = 0;
  virtual void formHidden(Form& form) = 0;  // hidden, or about to be unloaded
  virtual void formForgotten(Form&) {}      // the form's memory goes
  virtual void formCaptionChanged(Form&) {}
  virtual void controlChanged(Control&, Property) {}
  virtual void menuChanged(Form&) {}
  // True where the host opened the menu of that entry of the bar itself: its keys belong to the host until it closes.
  virtual bool opensMenu(Form&, MenuEntry&) { return false; }
  // A form became active, or the focus moved inside the active one.
  virtual void focusMoved(Form&, Control*) {}

  // Runs events until the form is no longer visible.
  virtual void runModal(Form& form) = 0;
  // Called once a record by long work; cheap. Only forms that are live during work get events.
  virtual void letEventsThrough() = 0;
  // True where letEventsThrough would deliver something now: a walk writes its changed block first. Cheap.
  virtual bool eventWaits() { return true; }
  // Input stands still, clipboard and speech are served.
  virtual void waitSeconds(double seconds) = 0;
  // Seconds since midnight, single precision.
  virtual float dayTimer() = 0;
  virtual DateTime now() = 0;
  // 32 random bits.
  virtual std::uint32_t randomBits() = 0;
  virtual void beep() = 0;
  // A tone of that pitch; returns at once, tones that follow are played one behind the other.
  virtual void tone(double /*hertz*/, int /*milliseconds*/) { beep(); }
  // Hands a link ("tel:…") to the system; false where nothing takes it.
  virtual bool openLink(TextView /*link*/) { return false; }
  // Whether saveImage has a way to an image, and a drawing stored as one (PNG); false where the file was not written.
  virtual bool savesImages() { return false; }
  virtual bool saveImage(const PictureBox& /*picture*/, TextView /*path*/) { return false; }
  // Width of `text` on the screen, in twips; without a screen 120 for each half-width character.
  virtual int textTwips(TextView text);

  // The clipboard. False where it could not be read or set; nothing has changed then.
  virtual bool clipboardText(Text& out) = 0;
  // What another program put there, while it is still there: read once when it came, apart, so that this never waits.
  // nullopt while the clipboard is ours, empty, or its owner does not answer.
  virtual std::optional<Text> othersClipboard() { return std::nullopt; }
  virtual bool clearClipboard() = 0;
  // A sentence for the reader.
  virtual bool sayOnClipboard(TextView sentence) = 0;
  // A text for the user, which no reader of ours speaks.
  virtual bool setClipboard(TextView text) = 0;

  virtual Character& character() = 0;
  virtual Printer& printer() = 0;
  // Port 1 to 3; null where it can't be opened. `device` stands for it where the environment names none; it may be
  // empty.
  virtual std::unique_ptr<SerialPort> openSerial(int port, TextView device) = 0;
};

// The host of the process, set before anything else runs.
Host& host();
void setHost(Host* host);

// Ends the program from wherever it is: every modal loop is left. Thrown, and caught only by the outermost loop.
struct ProgramEnd {};

}  // namespace zelko
