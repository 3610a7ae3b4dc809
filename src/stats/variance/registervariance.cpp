#include "stats/variance/registervariance.h"

#include "stats/variance/onewayform.h"
#include "stats/variance/threewayform.h"
#include "stats/variance/twowayform.h"

namespace zelko {

void registerVariance() {
  registerOneWayForm();
  registerTwoWayForm();
  registerThreeWayForm();
}

}  // namespace zelko
