#pragma once

#include "options.h"
#include "tables/reference_tables.h"

namespace borvik {

/// Calculates the projects one after the other and writes what is asked for. A bad one doesn't stop the others.
/// @return the highest exit code of all
int runBatch(const Options& options, const ReferenceTables& tables);

}  // namespace borvik
