#include "store/rewrite/rewrite_model.h"

#include <algorithm>

#include "platform/text/number.h"
#include "store/table/table.h"

namespace zelko::test {

namespace {

std::string resized(std::string cell, int width, bool right) {
  const auto wanted = static_cast<std::size_t>(width);
  if (!right) {
    cell.resize(wanted, ' ');
    return cell;
  }
  while (!cell.empty() && cell.back() == ' ') cell.pop_back();
  while (!cell.empty() && cell.front() == ' ') cell.erase(0, 1);
  while (cell.size() < wanted) cell.insert(0, 1, ' ');
  return cell.substr(cell.size() - wanted);
}

template <class T>
std::vector<T> moved(const std::vector<T>& old, int first, int last, int place) {
  std::vector<T> out;
  for (int i = 0; i <= static_cast<int>(old.size()); ++i) {
    if (i == place) out.insert(out.end(), old.begin() + first, old.begin() + last + 1);
    if (i < static_cast<int>(old.size()) && (i < first || i > last)) out.push_back(old[static_cast<std::size_t>(i)]);
  }
  return out;
}

template <class T>
void erase(std::vector<T>& from, int first, int last) {
  from.erase(from.begin() + first, from.begin() + last + 1);
}

int sizeOf(const auto& all) { return static_cast<int>(all.size()); }

}  // namespace

std::string Model::bytes() const {
  std::string all;
  for (const auto& record : records) {
    std::string line;
    for (const std::string& cell : record) line += cell;
    line.resize(254, ' ');
    all += line + "\r\n";
  }
  return all;
}

bool Model::allows(const Operation& op) const {
  const bool ofItems = op.what == What::eraseItems || op.what == What::moveItems;
  const int count = ofItems ? sizeOf(items) : sizeOf(records);
  switch (op.what) {
    case What::erase:
    case What::eraseItems:
      return op.first <= op.last && op.last < count && (!ofItems || op.first > 0);
    case What::move:
    case What::moveItems:
      return op.first <= op.last && op.last < count && op.place <= count && (op.place < op.first || op.place > op.last);
    case What::width:
      return op.by != 0 && op.first < sizeOf(items) && items[static_cast<std::size_t>(op.first)].width + op.by >= 1;
    case What::align:
      return op.first < sizeOf(items);
    case What::insert:
      return op.place <= count && op.by >= 1;
    case What::insertItems:
      return op.place <= sizeOf(items) && op.by >= 1 && sizeOf(items) < 12;
  }
  return false;
}

void Model::apply(const Operation& op) {
  const auto item = static_cast<std::size_t>(op.first);
  std::vector<std::string> blank;
  switch (op.what) {
    case What::insert:
      for (const ItemLine& line : items) blank.emplace_back(static_cast<std::size_t>(line.width), ' ');
      records.insert(records.begin() + op.place, static_cast<std::size_t>(op.by), blank);
      break;
    case What::erase:
      return erase(records, op.first, op.last);
    case What::move:
      records = moved(records, op.first, op.last, op.place);
      break;
    case What::insertItems:
      for (auto& record : records) record.insert(record.begin() + op.place, static_cast<std::size_t>(op.by), " ");
      for (int i = 0; i < op.by; ++i)
        items.insert(items.begin() + op.place + i, {u"項目" + decimal(op.place + i), u"L", 1});
      break;
    case What::eraseItems:
      for (auto& record : records) erase(record, op.first, op.last);
      return erase(items, op.first, op.last);
    case What::moveItems:
      for (auto& record : records) record = moved(record, op.first, op.last, op.place);
      items = moved(items, op.first, op.last, op.place);
      break;
    case What::width:
      items[item].width = static_cast<std::int16_t>(items[item].width + op.by);
      for (auto& record : records)
        record[item] = resized(record[item], items[item].width, items[item].alignment == u"R");
      break;
    case What::align: {
      const bool right = items[item].alignment == u"L";
      items[item].alignment = right ? u"R" : u"L";
      for (auto& record : records) {
        const auto first = record[item].find_first_not_of(' ');
        if (first == std::string::npos) continue;
        record[item] = resized(right ? record[item] : record[item].substr(first), items[item].width, right);
      }
      break;
    }
  }
}

Model sampleTable(int records, int items) {
  static const char* const kCells[] = {"\x91\xbe\x98Y", " 12",  "\x83\x5c|", "", "a b ",
                                       "\xb1\xb2\xb3",  "\x88", "//////",    "x"};
  Model model;
  for (int i = 0; i < items; ++i)
    model.items.push_back(
        {Text(1, static_cast<char16_t>(u'A' + i)), i % 2 == 1 ? u"R" : u"L", static_cast<std::int16_t>(3 + i)});
  for (int r = 0; r < records; ++r) {
    std::vector<std::string> record;
    for (int i = 0; i < items; ++i) record.push_back(resized(kCells[(r * 5 + i) % 9], 3 + i, i % 2 == 1 && r % 3 != 0));
    model.records.push_back(record);
  }
  return model;
}

std::vector<Operation> edgeOperations(const Model& model) {
  const int r = sizeOf(model.records), i = sizeOf(model.items) - 1;
  const std::vector<Operation> all = {
      {What::insert, 0, 0, 0, 1},
      {What::insert, 0, 0, r, 2},
      {What::insert, 0, 0, r / 2, 1},
      {What::erase, 0, 0},
      {What::erase, r - 1, r - 1},
      {What::erase, 0, r - 1},
      {What::move, 0, 0, r},
      {What::move, r - 1, r - 1, 0},
      {What::move, 1, 2, 0},
      {What::insertItems, 0, 0, 0, 1},
      {What::insertItems, 0, 0, i + 1, 2},
      {What::eraseItems, 1, 1},
      {What::eraseItems, 1, i},
      {What::moveItems, 0, 0, i + 1},
      {What::moveItems, i, i, 0},
      {What::width, 0, 0, 0, -1},
      {What::width, 0, 0, 0, 1},
      {What::width, i, 0, 0, -2},
      {What::width, i, 0, 0, 2},
      {What::align, 0},
      {What::align, i},
  };
  std::vector<Operation> allowed;
  std::ranges::copy_if(all, std::back_inserter(allowed), [&](const Operation& op) {
    return std::min({op.first, op.last, op.place}) >= 0 && model.allows(op);
  });
  return allowed;
}

Task taskOf(const Operation& op, const std::vector<ItemLine>& items, std::int32_t records) {
  Task task{{{{1, records}}, {}, false}, items, true};
  const int count = sizeOf(items);
  const auto reorder = [&](const ItemOrder& order) {
    task.items = itemsInOrder(items, order);
    task.plan.cells = cellMoves(items, task.items, order);
  };
  switch (op.what) {
    case What::insert:
      return {{stretchesWithInserted(records, op.place + 1, op.by), {}}, items};
    case What::erase:
      return {{stretchesWithDeleted(records, op.first + 1, op.last + 1), {}}, items};
    case What::move:
      return {{stretchesWithMoved(records, op.first + 1, op.last + 1, op.place + 1), {}}, items};
    case What::insertItems:
      reorder(orderWithInserted(count, op.place, op.by));
      break;
    case What::eraseItems:
      reorder(orderWithDeleted(count, op.first, op.last));
      break;
    case What::moveItems:
      reorder(orderWithMoved(count, op.first, op.last, op.place));
      break;
    case What::width: {
      ItemLine& item = task.items[static_cast<std::size_t>(op.first)];
      item.width = static_cast<std::int16_t>(item.width + op.by);
      task.plan.cells = cellMoves(items, task.items, orderWithInserted(count, 0, 0));
      break;
    }
    case What::align: {
      ItemLine& item = task.items[static_cast<std::size_t>(op.first)];
      item.alignment = item.alignment == u"L" ? u"R" : u"L";
      task.plan = {{{1, records}}, {realigned(items, op.first, item.alignment)}};
      break;
    }
  }
  return task;
}

}  // namespace zelko::test
