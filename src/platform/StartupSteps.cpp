#include "platform/StartupSteps.h"

#include <vector>

namespace StartupSteps {
namespace {
std::vector<std::function<void()>>& steps(Step s)
{
    static std::vector<std::function<void()>> table[StepCount];
    return table[s];
}
}

void add(Step step, std::function<void()> work) { steps(step).push_back(std::move(work)); }

void run(Step step)
{
    for (const auto& work : steps(step))
        work();
}
}
