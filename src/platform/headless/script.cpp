#include "platform/headless/script.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>

#include "platform/forms/routing.h"

namespace zelko {
namespace {

struct NamedVerb {
  TextView name;
  Verb verb;
};
constexpr std::array<NamedVerb, 19> kVerbs = {{{u"key", Verb::key},
                                               {u"type", Verb::type},
                                               {u"commit", Verb::commit},
                                               {u"compose", Verb::compose},
                                               {u"menu", Verb::menu},
                                               {u"click", Verb::click},
                                               {u"dblclick", Verb::dblclick},
                                               {u"Ctrl+dblclick", Verb::ctrlDblclick},
                                               {u"focus", Verb::focus},
                                               {u"wait", Verb::wait},
                                               {u"step", Verb::step},
                                               {u"clock", Verb::clock},
                                               {u"seed", Verb::seed},
                                               {u"clipboard", Verb::clipboard},
                                               {u"printer", Verb::printer},
                                               {u"port", Verb::port},
                                               {u"later", Verb::later},
                                               {u"show", Verb::show},
                                               {u"expect", Verb::expect}}};

struct Reason {
  std::string text;
};

[[noreturn]] void refuse(std::string reason) { throw Reason{std::move(reason)}; }

bool isDigit(char16_t ch) { return ch >= u'0' && ch <= u'9'; }

// Digits only, at most nine; nothing else is a number here.
std::optional<int> wholeNumber(TextView word) {
  if (word.empty() || word.size() > 9) return std::nullopt;
  int number = 0;
  for (char16_t ch : word) {
    if (!isDigit(ch)) return std::nullopt;
    number = number * 10 + (ch - u'0');
  }
  return number;
}

std::int64_t secondsAsMilliseconds(TextView word) {
  std::size_t point = word.find(u'.');
  auto whole = wholeNumber(word.substr(0, point));
  if (!whole) refuse("a number of seconds is wanted");
  std::int64_t thousandths = 0;
  if (point != TextView::npos) {
    Text places(word.substr(point + 1));
    if (places.empty() || !wholeNumber(places)) refuse("a number of seconds is wanted");
    places.resize(3, u'0');
    thousandths = *wholeNumber(places);
  }
  return std::int64_t{*whole} * 1000 + thousandths;
}

std::uint32_t seedNumber(TextView word) {
  std::uint64_t number = 0;
  for (char16_t ch : word) {
    if (!isDigit(ch) || number > 0xFFFFFFFFu) refuse("a whole number is wanted");
    number = number * 10 + static_cast<std::uint64_t>(ch - u'0');
  }
  if (word.empty() || number > 0xFFFFFFFFu) refuse("a whole number is wanted");
  return static_cast<std::uint32_t>(number);
}

DateTime dateAndTime(TextView word) {
  TextView shape = u"dddd-dd-dd dd:dd:dd";
  bool fits = word.size() == shape.size();
  for (std::size_t at = 0; fits && at < shape.size(); ++at) {
    fits = shape[at] == u'd' ? isDigit(word[at]) : word[at] == shape[at];
  }
  if (!fits) refuse("a date and time YYYY-MM-DD hh:mm:ss is wanted");
  auto part = [&](std::size_t at, std::size_t size) { return *wholeNumber(word.substr(at, size)); };
  DateTime when{part(0, 4), part(5, 2), part(8, 2), part(11, 2), part(14, 2), part(17, 2)};
  bool clock = when.hour < 24 && when.minute < 60 && when.second < 60;
  bool calendar = when.month >= 1 && when.month <= 12 && when.day >= 1;
  if (!clock || !calendar) refuse("there is no such time");
  DateTime day = fromDayNumber(dayNumber(when));
  if (day.month != when.month || day.day != when.day) refuse("there is no such day");
  return when;
}

// "\n" a line end, "\\" a backslash; any other backslash stands for itself.
Text unescaped(TextView text) {
  Text plain;
  for (std::size_t at = 0; at < text.size(); ++at) {
    bool pair = text[at] == u'\\' && at + 1 < text.size() && (text[at + 1] == u'n' || text[at + 1] == u'\\');
    if (!pair) {
      plain += text[at];
    } else if (text[++at] == u'n') {
      plain += kLineEnd;
    } else {
      plain += u'\\';
    }
  }
  return plain;
}

Verb verbOf(TextView word) {
  for (const NamedVerb& named : kVerbs) {
    if (named.name == word) return named.verb;
  }
  refuse("unknown action \"" + toUtf8(word) + "\"");
}

void needOneWord(const Text& word) {
  if (word.empty() || word.find(u' ') != Text::npos) refuse("one name is wanted");
}

Action parseLine(TextView line);

void parseLater(TextView arguments, Action& action) {
  std::size_t blank = arguments.find(u' ');
  auto nth = wholeNumber(arguments.substr(0, blank));
  if (!nth || *nth < 1 || blank == TextView::npos) refuse("a count from 1 and an action are wanted");
  action.number = *nth;
  action.then = std::make_shared<Action>(parseLine(arguments.substr(blank + 1)));
  Verb verb = action.then->verb;
  if (verb != Verb::key && verb != Verb::click && verb != Verb::menu && verb != Verb::wait)
    refuse("only a key, click, menu or wait can come later");
}

PortState stateNamed(TextView word) {
  static constexpr std::array<TextView, 5> names = {u"present", u"absent", u"busy", u"fails", u"silent"};
  auto found = std::find(names.begin(), names.end(), word);
  if (found == names.end()) refuse("present, absent, busy, fails or silent is wanted");
  return static_cast<PortState>(found - names.begin());
}

void parsePrinter(TextView word, Action& action) {
  action.state = stateNamed(word);
  if (action.state != PortState::present && action.state != PortState::absent) refuse("present or absent is wanted");
}

void parsePort(TextView word, Action& action) {
  if (!word.starts_with(u"COM") || word.size() < 5 || word[3] < u'1' || word[3] > u'3' || word[4] != u' ')
    refuse("COM1, COM2 or COM3 is wanted");
  action.number = word[3] - u'0';
  action.state = stateNamed(trimmed(word.substr(5)));
}

void parseArguments(TextView arguments, Action& action) {
  Text word = trimmed(arguments);
  switch (action.verb) {
    case Verb::key:
      if (!keyByName(word, action.key)) refuse("unknown key \"" + toUtf8(word) + "\"");
      break;
    case Verb::type:
    case Verb::commit:
      if (arguments.empty()) refuse("a text is wanted");
      [[fallthrough]];
    case Verb::compose:
    case Verb::clipboard:
      action.text = unescaped(arguments);
      break;
    case Verb::expect:
      if (arguments.empty()) refuse("a text is wanted");
      action.text = arguments;
      break;
    case Verb::menu:
      needOneWord(word);
      action.text = word;
      break;
    case Verb::click:
    case Verb::dblclick:
    case Verb::ctrlDblclick:
    case Verb::focus:
      if (!parseControlName(word, action.form, action.control, action.index)) refuse("FORM.CONTROL is wanted");
      break;
    case Verb::wait:
    case Verb::step:
      action.number = secondsAsMilliseconds(word);
      break;
    case Verb::clock:
      action.when = dateAndTime(word);
      break;
    case Verb::seed:
      action.number = seedNumber(word);
      break;
    case Verb::printer:
      parsePrinter(word, action);
      break;
    case Verb::port:
      parsePort(word, action);
      break;
    case Verb::later:
      parseLater(arguments, action);
      break;
    case Verb::show:
      if (word.starts_with(u"menu ")) word = u"menu " + trimmed(TextView(word).substr(5));
      needOneWord(word.starts_with(u"menu ") ? word.substr(5) : word);
      if (word == u"menu") refuse("the name of a menu entry is wanted");
      action.text = word;
      break;
  }
}

Action parseLine(TextView line) {
  std::size_t blank = line.find(u' ');
  Action action;
  action.verb = verbOf(line.substr(0, blank));
  parseArguments(blank == TextView::npos ? TextView() : line.substr(blank + 1), action);
  return action;
}

bool isPair(TextView text, std::size_t at) {
  return text[at] >= 0xD800 && text[at] < 0xDC00 && at + 1 < text.size() && text[at + 1] >= 0xDC00 &&
         text[at + 1] < 0xE000;
}

void addTyped(const Action& typed, std::vector<Action>& actions) {
  for (std::size_t at = 0; at < typed.text.size();) {
    std::size_t size = isPair(typed.text, at) || typed.text.compare(at, 2, kLineEnd) == 0 ? 2 : 1;
    Action& one = actions.emplace_back(typed);
    one.text = typed.text.substr(at, size);
    at += size;
  }
}

void addLine(TextView line, int number, std::vector<Action>& actions) {
  while (!line.empty() && (line.front() == u' ' || line.front() == u'\t')) line.remove_prefix(1);
  if (line.empty() || line.front() == u'#') return;
  Action action = parseLine(line);
  action.line = number;
  if (action.then) action.then->line = number;
  if (action.verb == Verb::type) return addTyped(action, actions);
  actions.push_back(std::move(action));
}

Text decoded(std::string_view line) {
  Text text = fromUtf8(line);
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (isPair(text, at)) {
      ++at;
    } else if (text[at] >= 0xD800 && text[at] < 0xE000) {
      refuse("the line is not UTF-8");
    }
  }
  return text;
}

}  // namespace

bool parseControlName(TextView word, Text& form, Text& control, int& index) {
  std::size_t point = word.find(u'.');
  if (point == TextView::npos || point == 0) return false;
  TextView name = word.substr(point + 1);
  index = -1;
  if (std::size_t open = name.find(u'('); open != TextView::npos) {
    if (!name.ends_with(u')')) return false;
    auto number = wholeNumber(name.substr(open + 1, name.size() - open - 2));
    if (!number) return false;
    index = *number;
    name = name.substr(0, open);
  }
  if (name.empty() || word.find(u' ') != TextView::npos) return false;
  form = word.substr(0, point);
  control = name;
  return true;
}

std::vector<Action> parseScript(std::string_view bytes) {
  std::vector<Action> actions;
  if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
  for (int number = 1; !bytes.empty(); ++number) {
    std::size_t end = std::min(bytes.find('\n'), bytes.size());
    std::string_view line = bytes.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    try {
      addLine(decoded(line), number, actions);
    } catch (const Reason& reason) {
      throw ScriptError{number, reason.text};
    }
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
  return actions;
}

}  // namespace zelko
