#include "stats/correlation/registercorrelation.h"

#include "stats/correlation/itemform.h"
#include "stats/correlation/pearsonrun.h"

namespace zelko {

void registerCorrelation() {
  registerForm<frmRP>();
  registerPearson();
}

}  // namespace zelko
