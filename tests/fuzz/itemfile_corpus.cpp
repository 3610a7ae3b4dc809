// The committed item files and mutations of them: itemfile_corpus FOLDER COUNT.
#include "fuzz/corpus.h"
#include "fuzz/itemfile_check.h"

int main(int argc, char** argv) {
  const std::string pieces[] = {",", "'", "\r", "\n", "\"", "-", "\x81", "0", "254", "255", "32768", "9E999", "&HFFFF"};
  return zelko::test::runCorpus(argc, argv, pieces, zelko::test::checkItemFile);
}
