#include "referencecountedobject.h"

ReferenceCountedObject::ReferenceCountedObject(const ReferenceCountedObject *keeper)
    : keeper(keeper != nullptr ? keeper->keeper : this)
    , references(1)
{
}

ReferenceCountedObject::~ReferenceCountedObject() = default;

void ReferenceCountedObject::addReference() const
{
    keeper->references.fetch_add(1, std::memory_order_relaxed);
}

void ReferenceCountedObject::removeReference() const
{
    // The only holder needs no atomic change: nobody else can reach the object any more.
    if (keeper->references.load(std::memory_order_acquire) == 1
        || keeper->references.fetch_sub(1, std::memory_order_acq_rel) == 1)
        delete keeper;
}

int ReferenceCountedObject::getReferenceCount() const
{
    return keeper->references.load(std::memory_order_relaxed);
}
