#include "store/table/table.h"

namespace zelko {

std::int16_t itemCount = 0;
std::array<Text, kMaxItems> itemName;
std::array<Text, kMaxItems> itemLR;
std::array<std::int16_t, kMaxItems> itemWidth{};
std::array<std::int16_t, kMaxItems> itemStart{};
std::array<std::int16_t, kMaxItems> itemWidthLoaded{};
Text tableMemo;
Text docDrive;
Text docPath;

std::int16_t otherItemCount = 0;
std::array<Text, kMaxItems> otherItemName;
std::array<Text, kMaxItems> otherItemLR;
std::array<std::int16_t, kMaxItems> otherItemWidth{};
std::array<std::int16_t, kMaxItems> otherItemStart{};
Text otherPath;
Text otherDrive;

const std::string blankRec(kDataBytes, ' ');
const std::string slashRec(kDataBytes, '/');

std::array<CacheRow, kCacheRows> recCache{};
std::int32_t cacheBase = 1;
std::int16_t cacheSize = 20;

namespace {

void resetOpenTable() {
  itemCount = 0;
  itemName.fill({});
  itemLR.fill({});
  itemWidth.fill(0);
  itemStart.fill(1);
  itemWidthLoaded.fill(0);
  tableMemo.clear();
  docDrive.clear();
  docPath.clear();
}

void resetOtherTable() {
  otherItemCount = 0;
  otherItemName.fill({});
  otherItemLR.fill({});
  otherItemWidth.fill(0);
  otherItemStart.fill(1);
  otherPath.clear();
  otherDrive.clear();
}

}  // namespace

void resetTable() {
  resetOpenTable();
  resetOtherTable();
  CacheRow blank;
  blank.fill(' ');
  recCache.fill(blank);
  cacheBase = 1;
  cacheSize = 20;
}

}  // namespace zelko
