#include "editor/clip/clip_session.h"

#include "editor/main/state.h"
#include "editor/moves/moves.h"
#include "editor/show/view.h"
#include "platform/files/files.h"
#include "platform/text/sjis.h"
#include "store/records/records.h"
#include "store/table/cursor.h"
#include "store/table/itemfile.h"

namespace zelko::test {

namespace {

std::string replaced(std::string text, std::string_view what, std::string_view with) {
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size())
    text.replace(at, what.size(), with);
  return text;
}

}  // namespace

ClipSession::ClipSession() {
  open({{u"ID", 3}, {u"名", 6}, {u"点", 4, u'R'}, {u"注", 5}},
       {{u"1", u"太郎", u"12", u"abcde"}, {u"2", u"花子", u"7", u"f"}, {u"3", u"次郎", u"100", u""}}, 1);
}

void ClipSession::select(std::int16_t kind, std::int32_t rec1, std::int32_t rec2, std::int16_t item1,
                         std::int16_t item2) {
  rangeKind = kind;
  rangeRec1 = rec1;
  rangeRec2 = rec2;
  rangeItem1 = item1;
  rangeItem2 = item2;
}

void ClipSession::replaceData(const std::string& bytes) {
  run([&] {
    closeFile(1);
    writeBytes(data(), bytes);
    REQUIRE(reopenData());
    curRec = 1;
    reloadCur();
  });
}

void ClipSession::cursorTo(std::int32_t record, std::int16_t item) {
  run([=] { jumpTo(record, item); });
  said();
}

void ClipSession::writeClip(std::string text) const {
  writeBytes(folder() / "ZLKCLip", toSjis(fromUtf8(replaced(std::move(text), "\n", "\r\n"))));
}

std::string ClipSession::file(const std::string& name) const {
  return replaced(toUtf8(fromSjis(readBytes(folder() / name))), "\r\n", "\n");
}

std::vector<std::string> ClipSession::table() const {
  std::vector<std::string> rows;
  for (int number = 1; number <= records(); ++number) rows.push_back(cells(number));
  return rows;
}

std::string ClipSession::show(const std::string& what) {
  (void)events();
  play("show " + what);
  std::string all;
  for (const std::string& line : events()) all += (all.empty() ? "" : "\n") + line;
  return all;
}

bool holds(const std::string& text, std::string_view part) { return text.find(part) != std::string::npos; }

}  // namespace zelko::test
