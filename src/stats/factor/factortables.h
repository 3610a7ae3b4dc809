// The tables of the factor report, as its lines.
#pragma once

#include <span>
#include <vector>

#include "platform/text/text.h"
#include "stats/numbers/covariance.h"
#include "stats/numbers/matrix.h"

namespace zelko {

using Lines = std::vector<Text>;

// Cases, a line a variable, correlations over covariances, and the note.
Lines basicStatistics(const numbers::Covariance& basics);
// One value a line, descending; `label` tells the diagonal.
Lines eigenvalueTable(std::span<const double> values, TextView label);
// Items by factors, the communalities behind.
Lines loadingTable(const numbers::Matrix& loadings, std::span<const double> communalities);
// The lower triangle with its diagonal, under its name.
Lines triangle(TextView name, const numbers::Matrix& symmetric);
// Records by factors.
Lines scoreTable(const numbers::Matrix& scores);

}  // namespace zelko
