// The run of a cluster analysis: cells to distances, distances to clusters, clusters to a report and a picture.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/forms/form.h"
#include "stats/cluster/clusterchoice.h"

namespace zelko {

// Over firstRecord to lastRecord. True where the report stands and `form` is gone; a refusal and a stop are told and
// leave it open. More than 200 records and a distance that can't be computed are faults.
bool clus(Form& form, const std::vector<std::int16_t>& items, ClusterChoice choice);

}  // namespace zelko
