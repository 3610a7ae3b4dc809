#include "files/output/outputname.h"

#include "parts/disk/filewords.h"

namespace zelko {

namespace {

constexpr TextView kExtension = u".txt";

TextView behindFolder(TextView name) { return name.substr(name.rfind(u'/') + 1); }

bool isBlank(TextView text) { return text.find_first_not_of(u" 　\t\r\n") == TextView::npos; }

bool hasExtension(TextView name) { return upperCase(right(name, kExtension.size())) == u".TXT"; }

}  // namespace

NameStep settleName(TextView folder, Text& typed, Text& fullName) {
  // The clipboard may have brought a line end.
  const Text name = trimmed(TextView(typed).substr(0, typed.find_first_of(u"\r\n")));
  TextView own = behindFolder(name);
  if (hasExtension(own)) own.remove_suffix(kExtension.size());
  if (isBlank(own)) return NameStep::noName;
  if (!hasExtension(name)) {
    typed = name + Text(kExtension);
    return NameStep::extended;
  }
  fullName = name.starts_with(u'/') ? name : pathIn(folder, name);
  return NameStep::settled;
}

Text convertedName(TextView source) {
  const std::size_t name = source.rfind(u'/') + 1;
  std::size_t dot = source.rfind(u'.');
  if (dot == TextView::npos || dot <= name) dot = source.size();
  return Text(source.substr(0, dot)) + u"_ZELKO" + Text(source.substr(dot));
}

}  // namespace zelko
