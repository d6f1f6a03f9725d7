#pragma once

#include <vector>

#include "core/OperationPlan.h"

namespace renvale::core {

// A file that stepped aside through a hidden name to break a cycle has two
// steps in its plan; a person counts it once. These mark, for every step,
// whether it is the last one of its file's way: the step that leaves the
// file where the operation wanted it.
std::vector<bool> LastStepsOfFiles(const OperationPlan& plan);

// How many files the plan moves, renames, copies or trashes.
int FilesIn(const OperationPlan& plan);

}  // namespace renvale::core
