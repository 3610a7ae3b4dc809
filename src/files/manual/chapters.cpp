#include "files/manual/chapters.h"

namespace zelko {

namespace {

constexpr char kChapters[] =
#include <manual_chapters.inc>
    ;
constexpr char kMenuLines[] =
#include <manual_menu.inc>
    ;

}  // namespace

std::string_view manualChapters() { return kChapters; }
std::string_view manualMenuLines() { return kMenuLines; }

}  // namespace zelko
