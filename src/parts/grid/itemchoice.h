// The choice of items in a grid: column 0 holds the mark, column 1 number and name, a row for each item from 1 on. The
// keypad's 1 marks, in the form with two groups its 2 as well.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "platform/forms/grid.h"
#include "voice/narration.h"

namespace zelko {

class ItemChoice {
 public:
  // Takes the grid's handlers.
  ItemChoice(Grid& grid, int groups);
  ItemChoice(const ItemChoice&) = delete;
  ItemChoice& operator=(const ItemChoice&) = delete;

  // The items of the open table, none marked, the cursor on the first.
  void fill();
  // What the grid says when it gets the focus and when that is asked for again.
  void narrate(Narration& voice);

  // The numbers of the marked items in the order of the rows.
  std::vector<std::int16_t> marked(int group = 1) const;
  void setMarked(const std::vector<std::int16_t>& items, int group = 1);
  // For a run with nothing marked: a beep, the focus, and the grid's sentence.
  void tellNothingMarked();

  // Asked before the second group is marked; false after the form has told why not.
  std::function<bool()> mayMarkSecond;
  std::function<void()> onMarked;

 private:
  void keyDown(KeyEvent& key);
  void keyUp(const KeyEvent& key);
  void pressed();
  void mark(TextView mark, TextView word);
  void markGroup(int group);
  Text mark() const;
  Text state() const;
  Text row() const;
  Text focusSentence() const;
  Text moveSentence() const;

  Grid& grid_;
  int groups_;
  bool filling_ = false;
};

}  // namespace zelko
