// The committed clip files, backups and formulas and mutations of them: clip_corpus FOLDER COUNT.
#include "fuzz/clip_check.h"
#include "fuzz/corpus.h"

int main(int argc, char** argv) {
  const std::string pieces[] = {",", "\"", "\r\n", "\n", " ", "-", "+", "*",    "^",   "\\",    "(",     ")",
                                "@", "@2", "E+",   ".",  "0", "1", "3", "\x81", "255", "32768", "9E999", "2000000000"};
  return zelko::test::runCorpus(argc, argv, pieces, zelko::test::checkByKind);
}
