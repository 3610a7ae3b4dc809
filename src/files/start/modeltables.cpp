#include "files/start/modeltables.h"

#include <algorithm>
#include <iterator>

#include "files/picker/othertables.h"
#include "platform/files/files.h"
#include "voice/talk.h"

namespace zelko {

namespace {

constexpr ModelTable kModels[] = {
    {1, u"家計簿.txt", u"k家計簿.txt", u"m1.___", u"km1.___"},
    {2, u"アドレス帖.txt", u"kアドレス帖.txt", u"m2.___", u"km2.___"},
    {3, u"20バイト10項目集計表.txt", u"k20バイト10項目集計表.txt", u"s10.___", u"ks10.___"},
    {4, u"4バイト50項目集計表.txt", u"k4バイト50項目集計表.txt", u"s50.___", u"ks50.___"},
    {5, u"2バイト100項目集計表.txt", u"k2バイト100項目集計表.txt", u"s100.___", u"ks100.___"},
    {6, u"1行40バイト原稿用紙.txt", u"k1行40バイト原稿用紙.txt", u"g40.___", u"kg40.___"},
    {100, u"サンプル住所録.txt", u"kサンプル住所録.txt", u"サンプル住所録.___", u"kサンプル住所録.___"},
    {101, u"サンプル試験結果.txt", u"kサンプル試験結果.txt", u"サンプル試験結果.___", u"kサンプル試験結果.___"},
};

Text inFolder(TextView name) { return appDir + Text(name); }

}  // namespace

const ModelTable* modelTable(int index) {
  const auto found =
      std::find_if(std::begin(kModels), std::end(kModels), [&](const ModelTable& m) { return m.index == index; });
  return found == std::end(kModels) ? nullptr : found;
}

bool healModelTable(const ModelTable& model) {
  if (waitsForItsRecords(inFolder(model.data))) return false;
  if (findIgnoringCase(inFolder(model.items))) return true;
  if (!fileExists(inFolder(model.storedData)) || !fileExists(inFolder(model.storedItems))) return false;
  const bool dataStood = fileExists(inFolder(model.data));
  if (copyFile(inFolder(model.storedData), inFolder(model.data)) != FileError::none) return false;
  if (copyFile(inFolder(model.storedItems), inFolder(model.items)) == FileError::none) return true;
  deleteFile(inFolder(model.items));
  if (!dataStood) deleteFile(inFolder(model.data));
  return false;
}

}  // namespace zelko
