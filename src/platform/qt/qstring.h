// Text of the model as text of Qt and back: both are UTF-16, so nothing is ever changed on the way.
#pragma once

#include <QString>

#include "platform/forms/control.h"
#include "platform/text/text.h"

namespace zelko {

inline QString toQt(TextView text) {
  return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}
inline Text fromQt(const QString& text) {
  return Text(reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size()));
}

// A caption without the mark before its letter, as a reader of the screen should say it.
inline QString shownCaption(TextView caption) { return toQt(withoutMarks(caption)).trimmed(); }

// Where a position of the model, whose lines are parted by CR LF, lies in text parted by LF, and back.
int nativePosition(TextView modelText, int position);
int modelPosition(const QString& nativeText, int position);

}  // namespace zelko
