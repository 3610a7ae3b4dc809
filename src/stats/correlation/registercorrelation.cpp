#include "stats/correlation/registercorrelation.h"

#include "stats/correlation/itemform.h"
#include "stats/correlation/pearsonrun.h"
#include "stats/correlation/rankform.h"

namespace zelko {

void registerCorrelation() {
  registerForm<frmRP>();
  registerPearson();
  registerRankForm();
}

}  // namespace zelko
