// A user's session in a test: the program on the headless host, keys in, sentences and bytes out.
#pragma once

#include <condition_variable>
#include <filesystem>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/headless/player.h"

namespace zelko {

// Runs the program on a thread of its own, strictly in turn with the test, so that a modal form that a key opens stays
// open for the next line of the test.
class Stage {
 public:
  Stage();
  ~Stage();
  // Runs the action on the program's thread until the program is done with it or waits for input in a modal form.
  void run(std::function<void()> action);
  // On the program's thread: gives the test its turn, and runs what it asks for; false when the test is over.
  bool next();

 private:
  void serve();
  bool awaitAction(std::unique_lock<std::mutex>& lock);
  void giveTurn(bool toProgram);

  std::mutex mutex_;
  std::condition_variable turn_;
  bool programsTurn_ = false, over_ = false;
  std::function<void()> action_;
  std::thread thread_;
};

struct ItemOfTable {
  Text name;
  int width;
  char16_t side = u'L';
};

class Fixture {
 public:
  Fixture();
  ~Fixture();
  Fixture(const Fixture&) = delete;
  Fixture& operator=(const Fixture&) = delete;

  // Runs anything as the program: shows the first form, sets a control.
  void run(std::function<void()> action);
  // Lines of a replay script. A line that can't be played fails the test.
  void play(const std::string& lines);
  void press(const std::string& key) { play("key " + key); }
  void type(TextView text) { play("type " + toUtf8(text)); }
  void commit(TextView text) { play("commit " + toUtf8(text)); }
  void menu(const std::string& name) { play("menu " + name); }
  void click(const std::string& control) { play("click " + control); }

  // The sentences since the last call, joined with " / "; and the whole transcript since, a line each.
  std::string said();
  std::vector<std::string> events();
  bool ended() const { return ended_; }
  HeadlessHost& host() { return host_; }

  // A folder of its own, gone with the fixture.
  const std::filesystem::path& folder() const { return folder_; }
  // A table in that folder, its item file too: rows of cells, cut or padded to their widths. Gives the data file's
  // path.
  Text makeTable(TextView name, const std::vector<ItemOfTable>& items, const std::vector<std::vector<Text>>& rows);
  // The bytes of a record on disk without its padding and line end, as text; of the table made last.
  Text record(int number) const;
  int records() const;

 private:
  void guarded(const std::function<void()>& action);

  std::filesystem::path folder_, table_;
  std::vector<std::string> lines_;
  std::size_t spoken_ = 0, told_ = 0;
  std::string complaint_;
  bool ended_ = false;
  HeadlessHost host_;
  Player player_;
  Stage stage_;
};

// Whole files as bytes.
std::string readBytes(const std::filesystem::path& path);
void writeBytes(const std::filesystem::path& path, std::string_view bytes);

}  // namespace zelko
