#pragma once

#include "corvaneframework_export.h"

#include <atomic>

/**
 * Base of objects that live as long as somebody holds a reference on them.
 *
 * A new object carries one reference, its creator's. Whoever wants to keep an object adds a
 * reference and removes it again; removing the last one deletes the object. An object that is a
 * part of another one (a sub-message of its main message) has a keeper: references taken on the
 * part count on the keeper, which lives and dies as a whole.
 *
 * Counting is atomic, so a reference may be removed on another thread than it was added on.
 */
class CORVANEFRAMEWORK_EXPORT ReferenceCountedObject
{
public:
    ReferenceCountedObject(const ReferenceCountedObject &) = delete;
    ReferenceCountedObject &operator=(const ReferenceCountedObject &) = delete;

    void addReference() const;
    /** Gives a reference back; the last one deletes the object (or its keeper, with all parts). */
    void removeReference() const;
    /** The references held at this moment, on the keeper where there is one. */
    int getReferenceCount() const;

protected:
    /** \a keeper: the object that this one is a part of and dies with, or null. */
    explicit ReferenceCountedObject(const ReferenceCountedObject *keeper = nullptr);
    virtual ~ReferenceCountedObject();

private:
    const ReferenceCountedObject *keeper; ///< Not owned; this object itself when it has no keeper.
    mutable std::atomic<int> references;
};
