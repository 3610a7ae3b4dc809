#include "stats/crosstable/registercrosstable.h"

#include "stats/crosstable/contingencyform.h"
#include "stats/crosstable/crossrun.h"
#include "stats/crosstable/fourfoldform.h"

namespace zelko {

void registerCrossTable() {
  registerCrossReport();
  registerFourfoldForm();
  registerContingencyForm();
}

}  // namespace zelko
