#include "core/PlanFiles.h"

#include <QSet>
#include <algorithm>

namespace renvale::core {

std::vector<bool> LastStepsOfFiles(const OperationPlan& plan) {
  std::vector<bool> last(plan.steps.size(), true);
  QSet<QByteArray> leftLater;  // names a later step takes a file from
  leftLater.reserve(static_cast<qsizetype>(plan.steps.size()));
  for (size_t i = plan.steps.size(); i-- > 0;) {
    const PlanStep& step = plan.steps[i];
    if (step.kind == StepKind::Rename && leftLater.contains(step.to)) last[i] = false;
    leftLater.insert(step.from);
  }
  return last;
}

int FilesIn(const OperationPlan& plan) {
  const std::vector<bool> last = LastStepsOfFiles(plan);
  return static_cast<int>(std::count(last.begin(), last.end(), true));
}

}  // namespace renvale::core
