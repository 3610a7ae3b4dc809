#include "files/files_fixture.h"

#include "files/picker/picker.h"
#include "store/table/table.h"

namespace zelko::test {

Text FilesFixture::table(TextView name) { return makeTable(name, {{u"ID", 4}, {u"氏名", 20}}, {{u"1", Text(name)}}); }

void FilesFixture::pick(PickFor purpose) {
  Fixture::play("wait 1");
  run([purpose] { showFilePicker(purpose); });
}

std::string FilesFixture::play(const std::vector<std::string>& lines) {
  for (const std::string& line : lines) Fixture::play(line);
  return heard();
}

std::string FilesFixture::heard() {
  std::string all;
  for (std::string line : events()) {
    if (line.starts_with("+ ") || line.starts_with("- ")) continue;
    if (line.starts_with("say ")) line = line.substr(4);
    for (std::size_t at; (at = line.find(folder().string())) != std::string::npos;)
      line.replace(at, folder().string().size(), "~");
    all += (all.empty() ? "" : " / ") + line;
  }
  return all;
}

}  // namespace zelko::test
