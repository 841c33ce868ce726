#pragma once

#include "corvaneframework_export.h"

#include <QObject>

/** The settings of the framework that hold for the whole process. */
class CORVANEFRAMEWORK_EXPORT Corvane : public QObject
{
    Q_OBJECT

public:
    /** The object whose signals tell of changes; it is never destroyed. */
    static Corvane *getInstance();

    /**
     * Whether the content of confidential fields may be shown; initially not. While it may not,
     * every text of a confidential value is one fixed text.
     */
    static bool confidentialInformationDisplayEnabled();
    static void setConfidentialInformationDisplayEnabled(bool enabled);

Q_SIGNALS:
    void confidentialInformationDisplayChanged(bool enabled);

private:
    Corvane() = default;
};
