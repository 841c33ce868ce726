#include "corvane.h"

#include <atomic>

namespace {
std::atomic<bool> confidentialDisplay = false;
} // namespace

Corvane *Corvane::getInstance()
{
    static auto *instance = new Corvane;
    return instance;
}

bool Corvane::confidentialInformationDisplayEnabled()
{
    return confidentialDisplay.load(std::memory_order_relaxed);
}

void Corvane::setConfidentialInformationDisplayEnabled(bool enabled)
{
    if (confidentialDisplay.exchange(enabled) == enabled)
        return;
    Q_EMIT getInstance()->confidentialInformationDisplayChanged(enabled);
}
