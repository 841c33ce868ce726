#pragma once

#include "options.h"

#include <QList>
#include <QString>
#include <QStringList>

class QSettings;

namespace corvane {

/** What people chose to watch, and with which definitions: all texts, as they wrote them. */
struct SourceChoice
{
    /** The choice that \a options make; they have a source. */
    static SourceChoice of(const Options &options);
    /** Adds the choice to \a options; what is wrong with its source, or an empty text. */
    QString addTo(Options &options) const;

    bool isProgram() const { return source.startsWith(QLatin1String("exec:")); }

    QString source;
    QStringList definitions;
    QStringList overlays;
    QString framing;
    QString root;

    friend bool operator==(const SourceChoice &, const SourceChoice &) = default;
};

/** The latest sources, each with its definitions, in the settings. */
class RecentSources
{
public:
    static constexpr int maximumCount = 12;

    /** \a settings: not owned, must outlive the object. */
    explicit RecentSources(QSettings &settings);

    /** Latest first. What the settings hold need not be right; what cannot be is left out. */
    QList<SourceChoice> get() const;
    /** Puts \a choice first, in place of an earlier one of the same source. */
    void add(const SourceChoice &choice);
    void remove(const QString &source);

private:
    void write(const QList<SourceChoice> &choices);

    QSettings &settings;
};

} // namespace corvane
