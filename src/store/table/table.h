// The table description and the record cache: module-wide, for the one open table.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/text/text.h"

namespace zelko {

inline constexpr int kMaxItems = 256;  // rows of the arrays; the highest item in use is 254
inline constexpr int kHighestItem = 254;
inline constexpr int kDataBytes = 254;  // of a record, in front of CR LF
inline constexpr int kCacheRows = 102;
inline constexpr int kMaxCacheSize = 100;

// The open table.
extern std::int16_t itemCount;
extern std::array<Text, kMaxItems> itemName;
extern std::array<Text, kMaxItems> itemLR;
extern std::array<std::int16_t, kMaxItems> itemWidth;
extern std::array<std::int16_t, kMaxItems> itemStart;
extern std::array<std::int16_t, kMaxItems> itemWidthLoaded;  // as it stood in the item file
extern Text tableMemo;
extern Text docDrive;  // empty on this platform
extern Text docPath;   // absolute path of the data file; empty while no table is open

// Another table that was picked as a source; its file is never kept open.
extern std::int16_t otherItemCount;
extern std::array<Text, kMaxItems> otherItemName;
extern std::array<Text, kMaxItems> otherItemLR;
extern std::array<std::int16_t, kMaxItems> otherItemWidth;
extern std::array<std::int16_t, kMaxItems> otherItemStart;
extern Text otherPath;
extern Text otherDrive;

inline constexpr std::int16_t recLen = 256;
extern const std::string blankRec;  // 254 blanks
extern const std::string slashRec;  // 254 "/": a cache row outside the file

// Row 0 is scratch for a single record, row 1 a copy of the record whose cell is being cut, rows 2 up are the cache:
// record r stands in row r - cacheBase + 2.
using CacheRow = std::array<char, recLen>;
extern std::array<CacheRow, kCacheRows> recCache;
extern std::int32_t cacheBase;  // record number of the first cache row
extern std::int16_t cacheSize;  // cache rows; 20 at the start, 100 at most

// Everything in this header as it is before a table is opened.
void resetTable();

}  // namespace zelko
