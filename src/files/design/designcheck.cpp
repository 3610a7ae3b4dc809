#include "files/design/designcheck.h"

#include <algorithm>

#include "editor/rewrites/realign.h"
#include "platform/text/number.h"
#include "platform/text/width.h"
#include "store/table/table.h"

namespace zelko {

namespace {

constexpr std::size_t kLongestName = 254;  // characters
constexpr TextView kFaultOfCell = u"記入の誤り";
constexpr TextView kBlanks = u" 　\t\r\n";
constexpr int kTooLarge = 99999;

bool isBlank(TextView text) { return text.find_first_not_of(kBlanks) == TextView::npos; }

bool isDigits(TextView text) { return !text.empty() && text.find_first_not_of(u"0123456789") == TextView::npos; }

// The value of digits, 0 for an empty text; a number that no limit allows stays one.
int numberOf(TextView digits) {
  const std::size_t first = digits.find_first_not_of(u'0');
  if (first == TextView::npos) return 0;
  const TextView significant = digits.substr(first);
  return significant.size() > 4 ? kTooLarge : toInt32(val(significant));
}

bool isSide(TextView typed) {
  const Text letter = alignmentLetter(typed);
  return letter == u"L" || letter == u"R";
}

int widthOf(const DesignRow& row) {
  const Text typed = trimmed(toHalfWidth(row.width));
  return isDigits(typed) ? numberOf(typed) : 0;
}

TextView sideFault(const DesignRow& row) {
  if (isBlank(row.side)) return u"L/Rが未定義です";
  return isSide(row.side) ? TextView() : TextView(u"R/Lを入力して下さい");
}

TextView widthFault(const DesignRow& row) {
  if (isBlank(row.width)) return u"項目幅がが未定義です";
  const int width = widthOf(row);
  return width < 1 || width > kDataBytes ? TextView(u"フィ－ルド幅が不正") : TextView();
}

TextView textFault(TextView text) {
  const bool fits = text.find_first_of(u",\r\n") == TextView::npos;
  return fits ? TextView() : TextView(u"文中に｢,｣があってはいけません");
}

void addLine(Text& text, TextView line) {
  if (!text.empty()) text += kLineEnd;
  text += line;
}

Text faultsOfRows(const std::vector<DesignRow>& rows) {
  Text faults;
  for (std::size_t item = 0; item < rows.size(); ++item) {
    for (const TextView fault : {sideFault(rows[item]), widthFault(rows[item]), textFault(rows[item].name)}) {
      if (!fault.empty()) addLine(faults, decimal(static_cast<std::int64_t>(item)) + u"項目" + Text(fault));
    }
  }
  return faults;
}

struct Cell {
  int start = 0, width = 0;
};

// Cells by their bytes, cut at the end of a record.
std::vector<Cell> cellsOf(const std::vector<ItemLine>& items) {
  std::vector<Cell> cells;
  int end = 0;
  for (const ItemLine& item : items) {
    const int start = std::min(end, kDataBytes);
    end += std::max<int>(item.width, 0);
    cells.push_back({start, std::min(end, kDataBytes) - start});
  }
  return cells;
}

}  // namespace

std::optional<CellFault> faultOfCell(DesignColumn column, TextView typed) {
  const auto fault = [](TextView said, TextView text) { return CellFault{said, Text(text), Text(kFaultOfCell)}; };
  if (column == DesignColumn::name && typed.size() > kLongestName)
    return fault(u"再入力、項目名は254文字以内。", u"項目名は254文字以内に押さえて下さい");
  if (column == DesignColumn::side && !isSide(typed))
    return fault(u"再入力、ＬかＲのみ記入。", u"Ｌ(左詰め指定)かＲ(右詰め指定）のみを入力して下さい");
  if (column != DesignColumn::width) return std::nullopt;
  const int width = numberOf(digitsOf(typed));
  if (width < 1) return fault(u"再入力、項目幅は１以上を。", u"項目幅は１以上を指定して下さい");
  if (width > kDataBytes) return fault(u"再入力、項目幅が長い。", u"項目幅が長すぎます");
  return std::nullopt;
}

Text storedCell(DesignColumn column, TextView typed) {
  if (column == DesignColumn::side) return isSide(typed) ? alignmentLetter(typed) : Text(typed);
  if (column == DesignColumn::width) return digitsOf(typed);
  return withoutLineEnds(typed);
}

Text digitsOf(TextView typed) {
  Text digits;
  for (const char16_t ch : toHalfWidth(typed)) {
    if (ch >= u'0' && ch <= u'9') digits += ch;
  }
  return digits;
}

TypedCount typedCount(TextView typed) {
  const Text number = trimmed(toHalfWidth(typed));
  if (isBlank(number)) return {};
  if (!isDigits(number)) return {{}, CellFault{{}, u"項目数は0以上でなければいけません。", u"項目数不適当"}};
  const int count = numberOf(number);
  if (count > recLen) {
    return {{}, CellFault{{}, u"項目数は" + decimal(recLen) + u"以下でなければいけません。", u"項目数多すぎる"}};
  }
  return {count, {}};
}

Text faultsOfTable(TextView count, TextView memo, const std::vector<DesignRow>& rows) {
  const TypedCount typed = typedCount(count);
  if (!typed.count && !typed.fault) return u"項目数が未定義です";
  if (typed.fault || *typed.count > kHighestItem) return u"項目数が不正(1-254)";
  Text faults = faultsOfRows(rows);
  if (const TextView fault = textFault(memo); !fault.empty()) addLine(faults, fault);
  int sum = 0;
  for (const DesignRow& row : rows) sum += widthOf(row);
  if (sum <= kDataBytes) return faults;
  Text all = u"総フィ－ルド長が長すぎます.";
  if (!faults.empty()) addLine(all, faults);
  return all;
}

std::vector<ItemLine> itemsOf(const std::vector<DesignRow>& rows) {
  std::vector<ItemLine> items;
  for (const DesignRow& row : rows)
    items.push_back({trimmed(row.name), alignmentLetter(row.side), static_cast<std::int16_t>(widthOf(row))});
  return items;
}

bool divisionChanges(const std::vector<ItemLine>& old, const std::vector<DesignRow>& rows) {
  const std::vector<ItemLine> items = itemsOf(rows);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i >= old.size()) return false;
    const bool wasLeft = old[i].alignment != u"R", isLeft = items[i].alignment != u"R";
    if (rows[i].oldItem != static_cast<int>(i) || items[i].width != old[i].width || wasLeft != isLeft) return true;
  }
  return false;
}

std::vector<CellMove> redesignedCells(const std::vector<ItemLine>& old, const std::vector<DesignRow>& rows) {
  const std::vector<ItemLine> items = itemsOf(rows);
  const std::vector<Cell> before = cellsOf(old), after = cellsOf(items);
  std::vector<CellMove> moves;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].oldItem < 0) continue;
    const Cell from = before[static_cast<std::size_t>(rows[i].oldItem)];
    const Justify side = items[i].alignment == u"R" ? Justify::right : Justify::left;
    moves.push_back({from.start, from.width, after[i].start, after[i].width, side});
  }
  return moves;
}

}  // namespace zelko
