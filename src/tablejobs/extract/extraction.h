// Records that pass a test copied from the open table into another one: the output, the scan, the candidates, the
// endings. The forms tell what passes.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "files/output/outputtable.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "tablejobs/search/searchscan.h"

namespace zelko {

class WalkedRecord;

// The controls of the form that take part.
struct ExtractionControls {
  Form& form;
  TextBox& conditions;  // where they are typed
  Button &start, &stop, &take, &skip;
  Label &prompt, &progress;
};

// What the form knows. All of it is asked anew whenever the scan goes on.
struct ExtractionRules {
  // Takes the conditions as they stand; false after the message of a wrong one.
  std::function<bool()> ready;
  // The item for which the record is a candidate. A Fault is told once, and the record is none.
  std::function<std::optional<std::int16_t>(const WalkedRecord&)> passes;
  std::function<bool()> automatic;
  std::function<Text()> head;         // of the closing message
  std::function<void()> onSkip = {};  // behind a candidate that is left
  Text closingWord = {};              // said behind the closing message; empty: nothing is
};

class Extraction {
 public:
  // Serves the clicks of the four buttons and the focus of the first one; the narration of the form comes later.
  Extraction(const ExtractionControls& controls, ExtractionRules rules);

  // What the button that takes a candidate says, and the one that stops.
  Text candidateSentence() const;
  Text stopSentence() const;
  // The job of the output dialog: takes the name, or tells why not.
  void takeName(const Text& fullName);

 private:
  enum class State { idle, named, scanning, candidate };

  void start();
  void begin();
  void goOn(std::int32_t from);
  bool visit(const WalkedRecord& record);
  std::optional<std::int16_t> tested(const WalkedRecord& record);
  void showCandidate();
  void take();
  void skip();
  void stop();
  bool write(std::string_view data);
  void showOutput();
  void close(bool stopped);
  void awaitFocus();
  void fail(bool telling);
  void workOn(bool stopped);
  void backToSource();
  void stayHere();
  void live(bool scanning);
  void enable(bool starts, bool takes);

  ExtractionControls controls_;
  ExtractionRules rules_;
  State state_ = State::idle;
  std::unique_ptr<OutputTable> output_;
  Text outputName_, caption_;
  std::int64_t recordsBefore_ = 0;  // in the output
  std::int64_t hits_ = 0, written_ = 0;
  std::int32_t atRecord_ = 1;  // of the scan
  CellAt saved_;               // the cursor when the form was opened
  std::string candidate_;      // its bytes
  bool stopAsked_ = false, faultTold_ = false, writeFailed_ = false;
};

// The job "MSRCH" of the output dialog goes to the extraction that asked last.
void registerExtractionOutput();

}  // namespace zelko
