#pragma once

#include "corvaneframework_export.h"

#include <QString>
#include <QtGlobal>

namespace corvane {

/** Something wrong in a file that was loaded: where, what, and what to do about it. */
struct CORVANEFRAMEWORK_EXPORT LoadError
{
    /** "file:line:column: message"; the parts that are not known are left out. */
    QString toString() const;

    QString file;
    qint64 line = 0; ///< Counted from 1; 0 where there is none.
    qint64 column = 0; ///< Counted from 1; 0 where there is none.
    QString message;
};

} // namespace corvane
