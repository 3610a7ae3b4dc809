#include "platform/qt/qstring.h"

#include <algorithm>

namespace zelko {

int nativePosition(TextView modelText, int position) {
  const int end = std::min(position, static_cast<int>(modelText.size()));
  int native = end;
  for (int at = 0; at + 1 < end; ++at) {
    const auto i = static_cast<std::size_t>(at);
    if (modelText[i] == u'\r' && modelText[i + 1] == u'\n') --native;
  }
  return native;
}

int modelPosition(const QString& nativeText, int position) {
  const int end = std::min(position, static_cast<int>(nativeText.size()));
  return end + static_cast<int>(std::count(nativeText.cbegin(), nativeText.cbegin() + end, QChar(u'\n')));
}

}  // namespace zelko
