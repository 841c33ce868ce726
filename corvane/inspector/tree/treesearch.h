#pragma once

#include "rowplace.h"

#include <QHash>
#include <QTimer>

class FormatInfo;

namespace corvane {

/**
 * Looks through the rows of a message tree, and through the types that have no row yet, for a text
 * in names, values and paths, upper and lower case alike. It works in slices between events, so
 * that a tree of any size stays alive; rows may come and go meanwhile.
 *
 * A text with a dot or a bracket is also looked for in paths: "position.lat", "volt[2]". Elements
 * have the name of their list, which is enough to find once. What a list or a sub-message would
 * hold counts as found at its own row while there is nothing in it.
 */
class TreeSearch : public QObject
{
    Q_OBJECT

public:
    static constexpr int sliceMs = 8;
    /** How far into what is not there is looked. */
    static constexpr int maximumDepth = 4;

    /** Neither is owned; both must outlive the search. */
    TreeSearch(MessageTreeWidget &tree, const FormatInfo &format, QObject *parent = nullptr);

    /** Begins anew; an empty text finds nothing. \a origin is where people are, or null. */
    void start(const QString &text, const QTreeWidgetItem *origin);

    const QString &getText() const { return text; }

    bool isRunning() const { return timer.isActive(); }

    /** In the order of rows; those of types without rows at the end. */
    const std::vector<RowPlace> &getHits() const { return hits; }

    /** How many of the hits lie before the origin; nothing while it has not been passed. */
    std::optional<size_t> getHitsBeforeOrigin() const { return hitsBeforeOrigin; }

    /** Whether \a row is a hit now. */
    bool isHit(QTreeWidgetItem *row);

Q_SIGNALS:
    /** There are more hits, or there will be no more. */
    void progressed();

private:
    /** A row whose children are being looked at. */
    struct Level
    {
        QTreeWidgetItem *row = nullptr; ///< Not owned; valid inside of a slice.
        const FieldInfo *field = nullptr;
        QString path; ///< Of the row; only where paths are searched.
        int next = 0; ///< The child to look at next.
    };

    void runSlice();
    void findColumns();
    void findLevelsAgain();
    bool visitRow();
    bool visitType();
    Level makeLevel(QTreeWidgetItem *row, const Level &parent) const;
    bool isIn(const QString &searched) const;
    bool isPathIn(const Level &level, const Level &parent) const;
    bool isHit(const Level &level, const Level &parent);
    bool hasInside(const FieldInfo *field);
    bool hasInside(const MessageInfo *type, const QString &path, int depth) const;
    void addHit(const QTreeWidgetItem *row);
    void visitFields(const MessageInfo *within, RowPlace &place, const QString &path);
    void visitField(const FieldInfo *field, RowPlace &place, const QString &above);
    bool isShown(const FieldInfo *field) const;

    MessageTreeWidget &tree;
    const FormatInfo &format;
    QString text;
    bool searchesPaths = false;
    int nameColumn = -1;
    int valueColumn = -1;
    int rawValueColumn = -1;
    const QTreeWidgetItem *origin = nullptr; ///< Only compared.
    std::optional<size_t> hitsBeforeOrigin;
    std::vector<RowPlace> hits;
    std::vector<Level> levels; ///< The way to the row to look at next; empty behind the last.
    size_t nextType = 0;
    QHash<const FieldInfo *, bool> insideByField; ///< What hasInside() said of it.
    QTimer timer;
};

} // namespace corvane
