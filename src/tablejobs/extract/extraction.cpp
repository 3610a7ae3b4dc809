#include "tablejobs/extract/extraction.h"

#include <algorithm>

#include "editor/moves/moves.h"
#include "files/output/output.h"
#include "files/output/outputending.h"
#include "parts/cells.h"
#include "platform/fault.h"
#include "platform/files/blockfiles.h"
#include "platform/host.h"
#include "platform/text/number.h"
#include "store/records/records.h"
#include "store/records/walk.h"
#include "store/table/cursor.h"
#include "store/table/notice.h"
#include "tablejobs/search/search.h"
#include "voice/dialogs.h"
#include "voice/heard.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr TextView kOutputJob = u"MSRCH", kOpenWord = u"srch";
constexpr int kShownEvery = 10;                         // records
constexpr int kShownOften = 1000;                       // records written; of more, every so manieth
constexpr double kBeforeScan = 0.1, kForChanges = 0.4;  // seconds
constexpr TextView kPrompt =
    u"記録を抽出する時は抽出ｷｰを,\r抽出しないときはSKIP(ALT+N)､\r又以後の検索条件変更も可能です";
constexpr TextView kWhere =
    u"元のﾌｧｲﾙで作業しますか、抽出ﾌｧｲﾙにいきますか。元のﾌｧｲﾙの場合　はい　、抽出ﾌｧｲﾙの場合 いいえ "
    u"再検索の場合「ｷｬﾝｾﾙ」を押して下さい。";

Extraction* asking = nullptr;

}  // namespace

Extraction::Extraction(const ExtractionControls& controls, ExtractionRules rules)
    : controls_(controls), rules_(std::move(rules)), caption_(controls.form.caption()), saved_{curRec, curItem} {
  controls_.start.onClick = [this] { start(); };
  controls_.stop.onClick = [this] { stop(); };
  controls_.take.onClick = [this] { take(); };
  controls_.skip.onClick = [this] { skip(); };
  controls_.stop.isCancel = true;
  controls_.take.isDefault = true;
  controls_.form.onClose = [this] { stop(); };
  controls_.form.onUnload = [] { mode.clear(); };
  enable(true, false);
}

// --- The output -------------------------------------------------------------------------------------------------

void Extraction::start() {
  if (!rules_.ready()) return;
  {
    const Silence silence;
    for (Button* button : {&controls_.start, &controls_.stop, &controls_.take, &controls_.skip})
      button->setEnabled(false);
  }
  output_ = std::make_unique<OutputTable>();
  asking = this;
  showOutputDialog(kOutputJob);
  asking = nullptr;
  controls_.stop.setEnabled(true);
  if (state_ != State::named) return stayHere();
  mode = kOutputJob;
  waitSec(kBeforeScan);
  begin();
}

void Extraction::takeName(const Text& fullName) {
  recordsBefore_ = std::max<std::int64_t>(lengthOf(fullName), 0) / recLen;
  if (!output_->open(fullName)) return;
  outputName_ = fullName;
  state_ = State::named;
  const Silence silence;
  closeOutputDialog();
}

bool Extraction::write(std::string_view data) {
  writeFailed_ = !output_->records().append(data.substr(0, kDataBytes));
  if (writeFailed_) return false;
  if (++written_ < kShownOften || written_ % kShownOften == 0) showOutput();
  return true;
}

void Extraction::showOutput() { controls_.form.setCaption(decimal(recordsBefore_ + written_) + u":" + outputName_); }

// --- The scan ---------------------------------------------------------------------------------------------------

void Extraction::begin() {
  mode = kOpenWord;
  hits_ = written_ = 0;
  stopAsked_ = faultTold_ = writeFailed_ = false;
  showOutput();
  goOn(1);
}

void Extraction::goOn(std::int32_t from) {
  live(true);
  Walk walk;
  walk.first = atRecord_ = from;
  walk.last = recCount();
  candidate_.clear();
  const WalkEnd end = walkRecords(walk, [this](const WalkedRecord& record) { return visit(record); });
  live(false);
  if (writeFailed_ || end == WalkEnd::failed) return fail(writeFailed_);
  if (!candidate_.empty()) return showCandidate();
  if (!stopAsked_) return close(false);
  host().beep();
  showFoundCell({std::clamp(atRecord_, 1, recCount() + 1), curItem});
  close(true);
}

// False at a stop, at a candidate that the user is asked about, and at a failure.
bool Extraction::visit(const WalkedRecord& record) {
  atRecord_ = record.number();
  if (atRecord_ % kShownEvery == 0) controls_.progress.setCaption(decimal(atRecord_));
  if (stopAsked_) return false;
  const std::optional<std::int16_t> item = tested(record);
  if (!item) return true;
  ++hits_;
  if (rules_.automatic()) return write(record.data());
  candidate_ = record.data();
  curItem = *item;
  return false;
}

std::optional<std::int16_t> Extraction::tested(const WalkedRecord& record) {
  try {
    return rules_.passes(record);
  } catch (const Fault& fault) {
    if (!std::exchange(faultTold_, true))
      showOK(u"記録" + decimal(record.number()) + u"は調べられません。" + fault.text + u"このような記録は抽出しません",
             u"検索条件");
    return std::nullopt;
  }
}

void Extraction::showCandidate() {
  state_ = State::candidate;
  host().beep();
  showFoundCell({atRecord_, curItem});
  controls_.prompt.setCaption(kPrompt);
  enable(false, true);
  {
    const Silence silence;
    controls_.take.setFocus();
  }
  if (talkMode == 0) return;
  nextIsHeard();
  talkGated(candidateSentence());
}

Text Extraction::candidateSentence() const {
  const Text cell = currentCell();
  return (cell.empty() ? Text(u"ブランク") : cell) + markStop + Text(kPrompt) + markStop + controls_.take.caption() +
         u"ｺﾏﾝﾄﾞぼたん";
}

Text Extraction::stopSentence() const {
  const Text place = state_ == State::scanning ? decimal(atRecord_) + u"ぎょう検索中､" : Text();
  return place + u"ｺﾏﾝﾄﾞﾎﾞﾀﾝ";
}

void Extraction::take() {
  if (!rules_.ready()) return;
  if (!write(candidate_)) return fail(true);
  if (atRecord_ < recCount()) {
    const Silence silence;
    controls_.conditions.setFocus();
    waitSec(kForChanges);
  }
  goOn(atRecord_ + 1);
}

void Extraction::skip() {
  if (!rules_.ready()) return;
  fire(rules_.onSkip);
  goOn(atRecord_ + 1);
}

void Extraction::stop() {
  stopAsked_ = true;
  if (state_ == State::scanning) return;  // the scan sees it
  if (state_ == State::candidate) return close(true);
  backToSource();
}

// While it scans only the button that stops it is alive.
void Extraction::live(bool scanning) {
  state_ = scanning ? State::scanning : State::idle;
  controls_.form.liveDuringWork = scanning;
  const Silence silence;
  controls_.prompt.setCaption({});
  controls_.stop.setFocus();
  for (Control* control : controls_.form.controls()) {
    const bool button = control == &controls_.start || control == &controls_.take || control == &controls_.skip;
    const bool takesInput = control->tabStop || control->kind() == ControlKind::grid;
    if (!button && control != &controls_.stop && takesInput) control->setEnabled(!scanning);
  }
  if (scanning) enable(false, false);
}

void Extraction::enable(bool starts, bool takes) {
  controls_.start.setEnabled(starts);
  controls_.take.setEnabled(takes);
  controls_.skip.setEnabled(takes);
}

// --- The endings ------------------------------------------------------------------------------------------------

void Extraction::close(bool stopped) {
  state_ = State::idle;
  showOutput();
  if (!output_->finish()) return fail(true);
  workOn(stopped);
}

void Extraction::workOn(bool stopped) {
  const Text counts = hits_ == 0 ? Text(u"該当ありませんでした!")
                                 : decimal(hits_) + u"件あり、" + decimal(written_) + u"記録抽出しました";
  const Text message =
      (stopped ? u"現在まで、" : u"") + rules_.head() + u"\r" + counts + u"\r終了しました!\r" + Text(kWhere);
  if (!rules_.closingWord.empty() && talkMode != 0) {
    ++composedSentences;
    talkNow(message + rules_.closingWord);
  }
  awaitFocus();
  switch (askWhereToWork(message, u"作業終了しました!")) {
    case WorkIn::source:
      return backToSource();
    case WorkIn::again:
      return stayHere();
    case WorkIn::output:
      mode.clear();
      workInOutput(outputName_, controls_.form);
  }
}

// Where the focus comes back to when a dialog is answered.
void Extraction::awaitFocus() {
  const Silence silence;
  controls_.conditions.setFocus();
}

void Extraction::fail(bool telling) {
  state_ = State::idle;
  awaitFocus();
  output_->takeBack();
  telling ? tellWriteError() : tellSearchUnreadable();
  stayHere();
  talkBehindDialog(u"異常終了");
}

// The cell is shown first: the box that gets the focus says it.
void Extraction::backToSource() {
  const std::int32_t last = recCount() + 1;
  showFoundCell({std::clamp(saved_.record, 1, last), std::clamp<std::int16_t>(saved_.item, 0, itemCount)});
  nextIsHeard();
  screen().unload(controls_.form);
}

void Extraction::stayHere() {
  state_ = State::idle;
  stopAsked_ = false;
  mode = kOpenWord;
  controls_.form.setCaption(caption_);
  controls_.prompt.setCaption({});
  controls_.conditions.setFocus();
  enable(true, false);
}

void registerExtractionOutput() {
  registerOutputJob(kOutputJob, {[](const Text& fullName) {
                      if (asking) asking->takeName(fullName);
                    }});
}

}  // namespace zelko
