#include "parts/disk/ownnames.h"

#include <doctest/doctest.h>

using namespace zelko;

TEST_CASE("names that the program uses for itself, in any letters, and names whose item file would be one") {
  for (const TextView name : {u"WORK.QQQ", u"work.qqq", u"/a/KWork.qqq.TXT", u"save.qqq", u"zlkclip", u"LKCLip.bak.txt",
                              u"ZLKclip.BAK", u"zlk.$$$", u"w1.txt", u"Kekka.txt", u"ekka.TXT", u"ZLKTALK", u"agent",
                              u"mAgent.txt", u"zlkhahaki", u"zlktel", u"ZLKport", u"SWAP.QQQ", u"henkan.QQQ"}) {
    CAPTURE(toUtf8(name));
    CHECK(isOwnName(name) == (name != u"LKCLip.bak.txt" && name != u"agent"));
  }
  for (const TextView name : {u"名簿.txt", u"work.txt", u"W10.txt", u"kekka2.txt", u"/WORK.QQQ/a.txt", u"QQQ.txt"})
    CHECK_FALSE(isOwnName(name));
}
