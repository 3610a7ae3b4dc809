#include "stats/frame/savepicture.h"

#include <algorithm>
#include <vector>

#include "parts/disk/filewords.h"
#include "platform/files/ownedfile.h"
#include "platform/host.h"
#include "stats/frame/outputfolder.h"
#include "stats/frame/savetext.h"
#include "stats/frame/svg.h"
#include "store/table/notice.h"
#include "store/table/table.h"
#include "voice/dialogs.h"
#include "voice/heard.h"

namespace zelko {

namespace {

constexpr TextView kTitle = u"図の保存";
constexpr TextView kVector = u".svg", kImage = u".png";

bool writeVector(const PictureBox& picture, TextView title, const Text& path) {
  OwnedFile file;
  if (file.openOutput(path) != FileError::none) return false;
  const bool printed = printBytes(file.number(), svgOf(picture, title)) == FileError::none;
  return file.close() == FileError::none && printed;
}

std::vector<Text> filesOf(const Text& path) {
  const Text ending = lowerCase(right(path, kVector.size()));
  if (ending == kVector || ending == kImage) return {path};
  std::vector<Text> files{path + Text(kVector)};
  if (host().savesImages()) files.push_back(path + Text(kImage));
  return files;
}

bool isImage(const Text& file) { return lowerCase(right(file, kImage.size())) == kImage; }

bool save(const PictureBox& picture, TextView title, const Text& file) {
  if (isImage(file) && !host().savesImages()) {
    tellFailure(u"この環境では、PNGでは保存できません。SVGで保存してください", kTitle);
    return false;
  }
  if (isImage(file) ? host().saveImage(picture, file) : writeVector(picture, title, file)) return true;
  tellFailure(spokenName(file) + u"に保存できません", kTitle);
  return false;
}

}  // namespace

Text pictureName(TextView item) {
  Text table = docPath.substr(docPath.rfind(u'/') + 1);
  table.resize(std::min(table.rfind(u'.'), table.size()));
  return table + u"-" + replaceAll(trimmed(item), u"/", u"／");
}

void savePictureAs(const PictureBox& picture, TextView title, TextView preset) {
  const Text answer = trimmed(talkAsk(u"図を保存するﾌｧｲﾙの名前を入力してください", kTitle, preset));
  if (answer.empty()) return;
  const std::vector<Text> files = filesOf(answer.front() == u'/' ? answer : pathIn(resultFolder(), answer));
  for (const Text& file : files) {
    if (!mayReplaceFile(file, kTitle)) return;
  }
  Text saved;
  for (const Text& file : files) {
    if (!save(picture, title, file)) return;
    saved += (saved.empty() ? Text() : Text(u"と")) + spokenName(file);
  }
  talkBehindDialog(saved + u"に保存しました");
}

}  // namespace zelko
