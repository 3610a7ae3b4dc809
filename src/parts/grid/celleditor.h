// A text box that lies over the current cell of a grid: all typing goes through it. Table design, conditions, sort
// keys, the scoring board, counts and formulas are typed this way; what differs between them is plain data and
// callbacks.
//
// Keys: Enter stores and goes on, Shift+Enter goes back, Up and Down change the row, Insert changes between inserting
// and overwriting, Shift+Ctrl+Insert and Shift+Ctrl+Delete put a row in and take one out. Tab leaves the grid.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "parts/grid/cellfault.h"
#include "platform/forms/controls.h"
#include "platform/forms/grid.h"

namespace zelko {

// What becomes of a changed text when another cell, or another control, gets the focus by anything but Enter.
enum class CellLeft {
  checked,  // stored as by Enter; a wrong one stays, and is told
  stored,   // stored as it stands
  dropped,
};

// Rows count from 1, below the heading; columns as the grid does. The columns from the grid's fixedCols on belong to a
// row and move with it.
struct CellRules {
  int firstCol = 1, lastCol = 1;  // that are typed into
  std::vector<int> passed = {};   // columns that Enter goes past
  CellLeft left = CellLeft::stored;
  int keptRows = 0;             // the first rows: never taken out, and nothing is put in front of them
  int mostRows = 32000;         // below the heading
  bool rowsChange = true;       // false: no row comes or goes by a key
  bool growsOnEnter = true;     // Enter behind the last cell adds a row, else it calls onEnd
  bool addedFromFirst = false;  // Down on the last row goes to the first column of the row that it adds
  bool marks = false;           // the text of a cell is marked, so that typing replaces it; else the caret is behind it
  bool overwriteEmpties =
      false;  // in overwrite mode the box is empty when a cell is entered, and untouched it changes none
  bool arrowsLeaveEmpty = false;  // Left and Right in an empty box go to the next column
  bool toggleBeeps = false;       // Insert beeps
  bool walksGrid = false;         // the grid can have the focus itself, and is walked with the arrows
};

// Any of them may be left out.
struct CellEvents {
  std::function<Text(int row, int col)> sentence;  // said through talkS when a cell is entered
  std::function<std::optional<CellFault>(int row, int col, const Text& typed)> fault;
  std::function<Text(int row, int col, const Text& typed)> stored;  // how it stands in the grid; else without line ends
  std::function<Text(int col, TextView typed)> typable;             // what the column takes of it; a beep for the rest
  std::function<Text(int row, int col)> refusal;                    // said at a cell that can't be changed; else empty
  std::function<void(int row, int col)> onEntered, onStored;
  std::function<void(int row)> onAdded;     // a row at the end: its number, and what it begins with
  std::function<Text(int row)> onInserted;  // an empty row stands there now; what is said of it
  std::function<Text(int row)> onDeleted;   // it is gone; what is said of it
  std::function<void()> onEnd;              // Enter behind the last cell
};

class CellEditor {
 public:
  // Takes the handlers of the box, of the grid's moves and of the label that shows "挿入" or "上書" (without one there
  // is one mode). The form's own handlers go behind them with appendHandler; its narration declares the box later.
  CellEditor(Grid& grid, TextBox& box, Label* mode, CellRules rules);
  CellEditor(const CellEditor&) = delete;
  CellEditor& operator=(const CellEditor&) = delete;

  CellEvents on;

  int row() const { return row_; }
  int col() const { return col_; }
  int lastRow() const { return grid_.rows() - 1; }
  bool overwrites() const { return overwrite_; }
  // For a grid whose columns come and go; within reshape.
  void setColumns(int lastCol, std::vector<int> passed);

  // Goes to a cell; what stands in the box is not stored. Said where the box has the focus.
  void enter(int row, int col);
  // The current cell of the grid into the box, without a word.
  void show();
  // Changes rows or texts of the grid without any event, then shows the current cell.
  void reshape(const std::function<void()>& change);

  bool changed() const;
  // For a button: a changed text is stored as if the focus went. False after the message of a wrong one.
  bool store();
  // The text of a cell as it counts, with what stands in the box.
  Text textAt(int row, int col) const;

  bool addRow();  // at the end; false where there are as many as there may be
  void insertRow();
  void deleteRow();
  void toggleMode();

 private:
  void wire();
  void keyDown(KeyEvent& key);
  void keyPress(CharEvent& event);
  void boxChanged();
  void gridMoved();
  void keepTypable();
  void next();
  void back();
  void sidewards(int direction);
  void upOrDown(int direction);
  bool storeChecked();
  void put(const Text& typed);
  void refuse(const CellFault& fault);
  Text typed() const;
  Text refusal() const { return on.refusal ? on.refusal(row_, col_) : Text(); }
  bool isPassed(int col) const;
  void say(const Text& sentence);
  void sayCell();

  Grid& grid_;
  TextBox& box_;
  Label* mode_;
  CellRules rules_;
  int row_ = 1, col_ = 1;
  Text previous_;           // the box before its last change
  bool overwrite_ = false;  // typing replaces the character at the caret
  bool emptied_ = false;    // the box does not show the text of the cell
  bool touched_ = false;    // the user has changed the box since the cell was entered
  bool marked_ = false;     // the whole text is marked: what is typed replaces it
  int held_ = 0;            // the program moves the cell or fills the box
};

}  // namespace zelko
