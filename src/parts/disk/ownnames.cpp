#include "parts/disk/ownnames.h"

#include <algorithm>
#include <iterator>

namespace zelko {

namespace {

// Work files all end so: WORK, KWORK, SWAP, KSAVE, HENKAN, CLIP…
constexpr TextView kWorkFiles = u".QQQ";
// Clip file, copy before sorting, work file and report of the analyses, settings.
constexpr TextView kNames[] = {u"ZLKCLIP", u"ZLKCLIP.BAK", u"ZLKCLIP.FOR", u"ZLK.$$$", u"W1",     u"KEKKA",
                               u"ZLKTALK", u"MAGENT",      u"ZLKHAHAKI",   u"ZLKTEL",  u"ZLKPORT"};

}  // namespace

bool isOwnName(TextView name) {
  constexpr TextView kExtension = u".TXT";
  Text own = upperCase(name.substr(name.rfind(u'/') + 1));
  if (own.ends_with(kExtension)) own.resize(own.size() - kExtension.size());
  const auto isOne = [](TextView one) {
    return one.ends_with(kWorkFiles) || std::ranges::find(kNames, one) != std::end(kNames);
  };
  return isOne(own) || isOne(u"K" + own);
}

}  // namespace zelko
