#include "platform/headless/headless_host.h"

#include <algorithm>
#include <cmath>

#include "platform/forms/composition.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/routing.h"

namespace zelko {
namespace {

constexpr std::int64_t kDay = 86'400'000;

std::int64_t milliseconds(const DateTime& when) {
  return dayNumber(when) * kDay + ((when.hour * 60 + when.minute) * 60 + when.second) * std::int64_t{1000};
}

}  // namespace

HeadlessHost::HeadlessHost(Transcript transcript)
    : transcript_(std::move(transcript)),
      start_(milliseconds(DateTime{})),
      printer_(transcript_),
      character_(transcript_) {}

void HeadlessHost::setClock(const DateTime& when) { start_ = milliseconds(when) - elapsed_; }

DateTime HeadlessHost::now() {
  std::int64_t at = start_ + elapsed_;
  std::int64_t days = at >= 0 ? at / kDay : (at + 1) / kDay - 1;
  auto seconds = static_cast<int>((at - days * kDay) / 1000);
  DateTime when = fromDayNumber(static_cast<int>(days));
  when.hour = seconds / 3600;
  when.minute = seconds / 60 % 60;
  when.second = seconds % 60;
  return when;
}

float HeadlessHost::dayTimer() {
  std::int64_t ofDay = ((start_ + elapsed_) % kDay + kDay) % kDay;
  return static_cast<float>(static_cast<double>(ofDay) / 1000.0);
}

// Ends one millisecond late, and later where the single precision of the timer can't tell it yet: a wait ends past its
// time, never on it.
void HeadlessHost::waitSeconds(double seconds) {
  if (!(seconds > 0)) return;
  double before = dayTimer();
  elapsed_ += std::llround(seconds * 1000) + 1;
  double after = dayTimer();
  while (after >= before && after - before <= seconds && seconds < 80'000) {
    ++elapsed_;
    after = dayTimer();
  }
}

// Timers come and go with their forms; one that is new, or has another interval, starts to count now.
void HeadlessHost::lookAtTimers() {
  std::vector<Due> there;
  for (const auto& form : screen().loadedForms()) {
    for (Control* control : form->controls()) {
      if (control->kind() != ControlKind::timer || !control->enabled()) continue;
      auto* timer = static_cast<Timer*>(control);
      if (timer->interval() <= 0) continue;
      auto known = std::find_if(timers_.begin(), timers_.end(), [&](const Due& due) {
        return due.timer == timer && due.interval == timer->interval();
      });
      there.push_back(known != timers_.end() ? *known : Due{timer, timer->interval(), elapsed_ + timer->interval()});
    }
  }
  timers_ = std::move(there);
}

bool HeadlessHost::fireNextTimer(std::int64_t until) {
  lookAtTimers();
  auto next = timers_.end();
  for (auto due = timers_.begin(); due != timers_.end(); ++due) {
    bool live = screen().workDepth == 0 || screen().takesInput(due->timer->form());
    if (live && (next == timers_.end() || due->at < next->at)) next = due;
  }
  if (next == timers_.end() || next->at > until) return false;
  elapsed_ = std::max(elapsed_, next->at);
  next->at = elapsed_ + next->interval;  // what was missed during a wait counts once
  Timer* timer = next->timer;
  Screen::HandlerScope scope;
  fire(timer->onTimer);
  return true;
}

void HeadlessHost::pass(std::int64_t milliseconds) {
  std::int64_t until = elapsed_ + milliseconds;
  while (fireNextTimer(until)) {
  }
  elapsed_ = lookedAt_ = std::max(elapsed_, until);
}

void HeadlessHost::idle() { pass(0); }

void HeadlessHost::deliverLater(int nth, std::function<void()> action) {
  deliveries_.push_back({passes_ + nth, std::move(action)});
}

void HeadlessHost::letEventsThrough() {
  ++passes_;
  if (deliveries_.empty() && elapsed_ == lookedAt_) return;
  struct Work {
    Work() { ++screen().workDepth; }
    ~Work() { --screen().workDepth; }
  } work;
  idle();
  deliverDue();
}

void HeadlessHost::deliverDue() {
  for (std::size_t at = 0; at < deliveries_.size();) {
    if (deliveries_[at].pass > passes_) {
      ++at;
      continue;
    }
    auto action = std::move(deliveries_[at].action);
    deliveries_.erase(deliveries_.begin() + static_cast<std::ptrdiff_t>(at));
    action();
  }
}

void HeadlessHost::tone(double hertz, int milliseconds) {
  transcript_("tone " + shownNumber(hertz) + " " + std::to_string(milliseconds));
}

bool HeadlessHost::openLink(TextView link) {
  transcript_("open " + oneLine(link));
  return true;
}

void HeadlessHost::compose(TextView text) {
  const std::size_t from = text.find(u'['), to = text.find(u']');
  Composition shown{Text(text), 0, 0};
  if (from < to && to != TextView::npos) {
    shown.text = Text(text.substr(0, from)) + Text(text.substr(from + 1, to - from - 1)) + Text(text.substr(to + 1));
    shown.start = static_cast<int>(from);
    shown.length = static_cast<int>(to - from) - 1;
  }
  composing_ = !shown.text.empty();
  compositionChanged(shown);
}

void HeadlessHost::endComposition() {
  if (composing_) compose(u"");
}

void HeadlessHost::formShown(Form& form) { transcript_("+ " + toUtf8(form.name()) + " " + oneLine(form.caption())); }

void HeadlessHost::formHidden(Form& form) { transcript_("- " + toUtf8(form.name())); }

void HeadlessHost::formForgotten(Form& form) {
  std::erase_if(timers_, [&](const Due& due) { return &due.timer->form() == &form; });
}

void HeadlessHost::runModal(Form& form) {
  releaseHeldKey();
  while (form.visible()) {
    idle();
    if (form.visible() && (!nextAction || !nextAction())) throw InputEnded{};
  }
}

bool HeadlessHost::clipboardText(Text& out) {
  if (clipboardFails) return false;
  out = clipboard_;
  return true;
}

void HeadlessHost::copyElsewhere(TextView text) {
  clipboard_ = text;
  others_ = Text(text);
}

bool HeadlessHost::clearClipboard() { return setClipboard(u""); }

bool HeadlessHost::setClipboard(TextView text) {
  if (clipboardFails) return false;
  clipboard_ = text;
  others_.reset();
  return true;
}

bool HeadlessHost::sayOnClipboard(TextView sentence) {
  if (!setClipboard(sentence)) return false;
  transcript_("say " + oneLine(sentence));
  return true;
}

std::unique_ptr<SerialPort> HeadlessHost::openSerial(int port, TextView) {
  if (port < 1 || port > 3) return nullptr;
  const PortState& state = ports_[static_cast<std::size_t>(port - 1)];
  if (state == PortState::absent || state == PortState::busy) return nullptr;
  return std::make_unique<RecordingSerial>(transcript_, port, state);
}

}  // namespace zelko
