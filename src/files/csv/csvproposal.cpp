#include "files/csv/csvproposal.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <set>

#include "files/csv/plaincells.h"
#include "platform/text/number.h"
#include "platform/text/sjis.h"
#include "store/table/table.h"

namespace zelko {

namespace {

constexpr std::size_t kMostItems = kDataBytes;  // a byte each
constexpr std::size_t kLongestName = 248;       // what an item file gives back

// What only a heading would say.
constexpr TextView kHeadings[] = {u"ID",       u"No",       u"No.",   u"NO",     u"番号",     u"氏名", u"名前",
                                  u"ふりがな", u"フリガナ", u"ﾌﾘｶﾞﾅ", u"住所",   u"電話",     u"TEL",  u"郵便番号",
                                  u"電話番号", u"メール",   u"年齢",  u"性別",   u"生年月日", u"日付", u"備考",
                                  u"会社",     u"部署",     u"品名",  u"数量",   u"単価",     u"金額", u"合計",
                                  u"点数",     u"name",     u"Name",  u"address"};

// A number, a date, a time, a telephone number: digits with what stands between them.
bool looksLikeNumber(std::string_view field) {
  return field.find_first_of("0123456789") != std::string_view::npos &&
         field.find_first_not_of("0123456789+-.,/:()% \\") == std::string_view::npos;
}

}  // namespace

std::size_t CsvSurvey::widthOf(std::string_view field) const {
  if (!utf8_ || isAscii(field)) return field.size();
  return sjisLength(fromUtf8(field));
}

void CsvSurvey::take(const CsvLine& line) {
  const bool isFirst = lines_++ == 0;
  mostFields_ = std::max(mostFields_, line.fields());
  const std::size_t count = std::min(line.fields(), kMostItems);
  if (fields_.size() < count) fields_.resize(count);
  if (isFirst) firstFields_ = count;
  for (std::size_t number = 0; number < count; ++number) {
    const std::string_view text = line.getSVCdata(number);
    Field& field = fields_[number];
    if (isFirst) {
      field.first = text;
      field.firstWidth = widthOf(text);
      continue;
    }
    field.widest = std::max(field.widest, widthOf(text));
    if (text.find_first_not_of(' ') == std::string_view::npos) continue;
    ++field.filled;
    if (looksLikeNumber(text)) ++field.numbers;
    if (text == field.first) field.firstComesAgain = true;
  }
}

// Words of its own over every field that has any below, none of them a number, and either a field whose other lines are
// numbers or a word that is nothing but a heading. In doubt it is a record, so that none is lost.
bool CsvSurvey::looksLikeHeading() const {
  if (lines_ < 2) return false;
  std::set<std::string_view> words;
  bool sure = false;
  for (std::size_t number = 0; number < firstFields_; ++number) {
    const Field& field = fields_[number];
    if (field.first.empty() && field.filled == 0) continue;
    if (field.first.empty() || field.firstComesAgain || looksLikeNumber(field.first)) return false;
    if (!words.insert(field.first).second) return false;
    const Text word = trimmed(utf8_ ? fromUtf8(field.first) : fromSjis(field.first));
    sure = sure || std::ranges::find(kHeadings, word) != std::end(kHeadings);
    sure = sure || (field.numbers > 0 && field.numbers * 2 > field.filled);
  }
  return sure;
}

Text CsvSurvey::nameOf(const Field& field, std::size_t number) const {
  Text name = trimmed(utf8_ ? fromUtf8(field.first) : fromSjis(field.first));
  std::ranges::replace(name, u',', u'、');
  return name.empty() ? u"item." + decimal(static_cast<std::int64_t>(number)) : left(name, kLongestName);
}

CsvProposal CsvSurvey::proposal() const {
  CsvProposal made;
  made.heading = looksLikeHeading();
  for (std::size_t number = 0; number < fields_.size(); ++number) {
    const Field& field = fields_[number];
    const std::size_t widest = made.heading ? field.widest : std::max(field.widest, field.firstWidth);
    ItemLine item{number == 0 ? Text(u"ID No") : u"item." + decimal(static_cast<std::int64_t>(number)), u"L", 1};
    if (made.heading) item.name = nameOf(field, number);
    item.width = static_cast<std::int16_t>(std::clamp<std::size_t>(widest, 1, kDataBytes));
    made.items.push_back(item);
  }
  made.narrowed = fitWidths(made.items);
  made.passedFields = static_cast<std::int64_t>(mostFields_ - fields_.size());
  return made;
}

bool fitWidths(std::vector<ItemLine>& items) {
  const auto sumUpTo = [&](int most) {
    return std::accumulate(items.begin(), items.end(), 0,
                           [most](int sum, const ItemLine& item) { return sum + std::min<int>(item.width, most); });
  };
  if (sumUpTo(kDataBytes) <= kDataBytes) return false;
  int most = 1;
  while (sumUpTo(most + 1) <= kDataBytes) ++most;
  // What is left over goes to the first of those that were narrowed, a byte each.
  int left = kDataBytes - sumUpTo(most);
  for (ItemLine& item : items) {
    if (item.width <= most) continue;
    item.width = static_cast<std::int16_t>(most + (left > 0 ? 1 : 0));
    if (left > 0) --left;
  }
  return true;
}

}  // namespace zelko
