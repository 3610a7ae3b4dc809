#include "stats/correlation/paircells.h"

#include <algorithm>

#include "parts/reading/tablelines.h"
#include "stats/correlation/pairwords.h"

namespace zelko {

void PairCells::add(std::size_t start, TextView line, std::int16_t i, std::int16_t j,
                    std::initializer_list<TextView> suffixes) {
  auto suffix = suffixes.begin();
  for (const TableToken& token : tokensOf(line)) {
    if (suffix == suffixes.end()) return;
    cells_.push_back({start + token.start, i, j, *suffix++});
  }
}

CellNames PairCells::names() const {
  return [cells = cells_](NamedPart part, TextView, std::size_t position) {
    if (part != NamedPart::whole) return Text();
    const auto cell = std::ranges::lower_bound(cells, position, {}, &Cell::position);
    if (cell == cells.end() || cell->position != position) return Text();
    return pairWords(cell->i, cell->j) + Text(cell->suffix);
  };
}

}  // namespace zelko
