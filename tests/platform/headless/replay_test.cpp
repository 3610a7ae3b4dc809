// Scripts, their transcripts and exit statuses.
#include <doctest/doctest.h>

#include "fixture.h"
#include "platform/fault.h"
#include "platform/forms/composition.h"
#include "platform/forms/mouse.h"
#include "platform/forms/sampleform.h"
#include "platform/headless/replay.h"
#include "platform/text/number.h"

using namespace zelko;

namespace {

struct Played {
  int status;
  std::string transcript, complaints;
};

// A program of one form: F2 ends it, F3 faults, F4 opens a dialog, F5 counts three ticks of a timer, F6 waits, F8 works
// under the eyes of its live form, F9 dials, F10 prints, F11 sounds and calls; a double click tells the keys held.
class Program : public SampleForm {
 public:
  static constexpr TextView kName = u"Form1";
  Program() : SampleForm(kName) {
    onActivate = nullptr;
    for (Control* control : controls()) control->onGotFocus = control->onLostFocus = nullptr;
    timer.onTimer = [this] { tick(); };
    onKeyDown = [this](KeyEvent& key) { command(key.code); };
    ok.onDblClick = [this] { tell(u"held " + decimal(mouseModifiers())); };
    onComposition([this](const Composition& c) {
      tell(c.text + u"|" + c.text.substr(static_cast<std::size_t>(c.start), static_cast<std::size_t>(c.length)));
    });
  }
  Timer timer{*this, u"Timer1"};

 private:
  void tick() {
    tell(u"tick " + shortTime(host().now()));
    if (++ticks_ == 3) timer.setInterval(0);
  }
  void command(int code) {
    if (code == key::function(2)) throw ProgramEnd{};
    if (code == key::function(3)) throw Fault{u"overflow"};
    if (code == key::function(4)) form<SampleDialog>().showModal();
    if (code == key::function(5)) timer.setInterval(700);
    if (code == key::function(6)) host().waitSeconds(2);
    if (code == key::function(7)) throw std::runtime_error("broken");
    if (code == key::function(8)) work();
    if (code == key::function(9)) dial();
    if (code == key::function(10)) print();
    if (code == key::function(11)) {
      host().tone(440.5, 200);
      host().openLink(u"tel:0123");
      tell(host().othersClipboard().value_or(u"nothing"));
    }
  }
  void work() {
    liveDuringWork = true;
    timer.setInterval(700);
    Text waits;
    for (int record = 0; record < 4; ++record) {
      waits += host().eventWaits() ? u'y' : u'n';
      host().letEventsThrough();
    }
    timer.setInterval(0);
    tell(waits);
  }
  void dial() {
    auto port = host().openSerial(2, {});
    if (!port) return tell(u"no port");
    if (!port->write("ATDT1;\r\n")) tell(u"refused");
    tell(u"answer " + fromUtf8(port->read()));
  }
  void print() {
    if (!host().printer().begin()) return tell(u"no printer");
    host().printer().text(10.5, 0, {}, u"a");
    host().printer().end();
    host().printer().beginFile(u"a.pdf");
    host().printer().end();
  }
  int ticks_ = 0;
};

Played replay(const std::string& script) {
  Fixture files;  // for its folder
  writeBytes(files.folder() / "script.txt", script);
  Played played{};
  ReplayOptions options;
  options.script = (files.folder() / "script.txt").string();
  options.transcript = [&](std::string_view line) { played.transcript.append(line).append("\n"); };
  options.complaints = [&](std::string_view line) { played.complaints.append(line).append("\n"); };
  played.status = runReplay(options, [] { form<Program>().show(); });
  setHost(&files.host());
  onComposition(nullptr);
  return played;
}

}  // namespace

TEST_CASE("exit statuses and what is told on the way") {
  struct Row {
    const char* script;
    int status;
    const char* transcript;  // behind "+ Form1 Sample"
    const char* complaint;
  };
  const Row rows[] = {
      {"", 0, "", ""},
      {"\xEF\xBB\xBF# a comment\r\n\r\n  key A\r\n", 0, "say text a\n", ""},
      {"type  a\\\\\\nb", 0, "say text  \nsay text  a\nsay text  a\\\nsay ok\nsay text  a\\b\n", ""},
      {"commit 東京\nexpect 京\nexpect 京", 1, "say text 東京\nFAILED expect 京\n", ""},
      {"expect x\ntype x\nexpect text x", 1, "FAILED expect x\nsay text x\n", ""},
      {"key F2\nkey A", 0, "end\n", ""},
      {"expect x\nkey F2", 1, "FAILED expect x\nend\n", ""},
      {"key F3\nkey A", 3, "fault overflow\n", ""},
      {"key F7", 3, "fault broken\n", ""},
      {"key F4\nkey Enter", 0, "+ frmDialog Sample\nsay active frmDialog\nsay in box\nsay ok\n", ""},
      {"key F4\nkey Esc\nkey F2", 0, "+ frmDialog Sample\nsay active frmDialog\nsay in box\n- frmDialog\nend\n", ""},
      {"Ctrl+dblclick Form1.ok\ndblclick Form1.ok", 0, "say ok\nsay held 2\nsay ok\nsay held 0\n", ""},
      {"compose [か]な\ncompose 仮名\ncommit 仮名\ncompose x\ncompose ", 0,
       "say かな|か\nsay 仮名|\nsay |\nsay text 仮名\nsay x|\nsay |\n", ""},
      {"later 2 wait 1.5\nkey F8", 0, "say tick 10:00:01\nsay tick 10:00:02\nsay yynn\n", ""},
      {"key F9\nport COM2 silent\nkey F9\nport COM2 fails\nkey F9\nport COM2 busy\nkey F9", 0,
       "serial 2 ATDT1;\\r\\n\nsay answer \\nOK\\n\nserial 2 ATDT1;\\r\\n\nsay answer \nsay refused\nsay answer \n"
       "say no port\n",
       ""},
      {"key F10\nprinter absent\nkey F10\nprinter present", 0,
       "print page 1\nprint text 10.5 0 ＭＳ ゴシック 10.5 a\nprint end\nprint file a.pdf\nsay no printer\n", ""},
      {"clipboard b\nkey F11\nkey F11", 0,
       "tone 440.5 200\nopen tel:0123\nsay b\ntone 440.5 200\nopen tel:0123\nsay nothing\n", ""},
      {"menu mnuSAVE\nmenu mnuNONE", 0, "say saved\nbeep\n", ""},
      {"click Form1.Option1(1)\ndblclick Form1.Option1(0)", 0, "say second\nsay first\n", ""},
      {"key A\nfocus Form1.check\ncommit b", 2, "say text a\n", "line 3: no text box has the focus\n"},
      {"menu mnuOTHER", 2, "", "line 1: no form that is open has a menu entry mnuOTHER\n"},
      {"click Form9.box", 2, "", "line 1: the form Form9 is not open\n"},
      {"click Form1.Option1", 2, "", "line 1: Form1 has no control Option1\n"},
  };
  for (const Row& row : rows) {
    CAPTURE(row.script);
    Played played = replay(row.script);
    CHECK(played.status == row.status);
    CHECK(played.transcript == std::string("+ Form1 Sample\n") + row.transcript);
    CHECK(played.complaints == row.complaint);
  }
}

TEST_CASE("a script is understood whole before anything runs") {
  for (const char* line : {"press A",
                           "key",
                           "key a",
                           "key Ctrl+",
                           "type",
                           "menu a b",
                           "click Form1.",
                           "click Form1.Option1(x)",
                           "wait -1",
                           "wait 1e3",
                           "step x",
                           "clock 2026-02-30 10:00:00",
                           "clock 2026-01-05 24:00:00",
                           "seed 4294967296",
                           "later 0 key A",
                           "later 2 type x",
                           "printer silent",
                           "port COM4 absent",
                           "port COM1 gone",
                           "show",
                           "type \xFF"}) {
    CAPTURE(line);
    Played played = replay(std::string("key A\n\n") + line + "\nkey B\n");
    CHECK(played.status == 2);
    CHECK(played.transcript == "");
    CHECK(played.complaints.starts_with("line 3: "));
  }
  for (const char* unreadable : {"no such script", "/", "/proc/self/mem"}) {
    std::string complaint;
    ReplayOptions options;
    options.script = unreadable;
    options.complaints = [&](std::string_view line) { complaint = line; };
    CHECK(runReplay(options, [] {}) == 2);
    CHECK(complaint == unreadable + std::string(": can't be read"));
  }
}

TEST_CASE("the virtual clock: timers fire as they fall due, never inside a wait") {
  CHECK(replay("key F5\nwait 2\nwait 9").transcript ==
        "+ Form1 Sample\nsay tick 10:00:01\nsay tick 10:00:02\nsay tick 10:00:03\n");
  CHECK(replay("step 0\nkey F5\nkey F6\nshow focus").transcript ==
        "+ Form1 Sample\nsay tick 10:00:02\nfocus Form1.box\n");
}

TEST_CASE("midnight, the month and the leap day") {
  Fixture f;
  f.play("clock 2028-02-28 23:59:59\nwait 1.5");
  CHECK(f.host().now() == DateTime{2028, 2, 29, 0, 0, 0});
  CHECK(f.host().dayTimer() == 0.5F);
}
