#pragma once

#include "corvaneframework_export.h"

#include <QFlags>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <array>
#include <memory>

class FieldInfo;
class MessageInfo;

namespace corvane {
class PathExpressionData;
} // namespace corvane

/**
 * An editable expression that selects message types and fields: "format.message.field".
 *
 * The text is made of parts that can be read and replaced on their own. In each, "*" stands for any
 * text and "?" for any one character; names that hold these, dots, quotes or backslashes are put in
 * double quotes, inside which a backslash takes the next character as it is. A sub-field is named
 * with the field that it lies in, "status.armed"; wildcards do not reach over such a dot, but a
 * part that is "*" alone matches everything. Any text is accepted; what names nothing matches
 * nothing.
 */
class CORVANEFRAMEWORK_EXPORT PathExpression : public QObject
{
    Q_OBJECT

public:
    enum Part {
        FormatPart = 1,
        MessagePart = 2,
        FieldPart = 4 ///< The field and, behind further dots, what lies inside it.
    };
    Q_DECLARE_FLAGS(Parts, Part)
    Q_FLAG(Parts)

    /** The set of all parts. */
    static const PathExpression::Parts AllParts; // NOLINT(readability-identifier-naming)

    explicit PathExpression(QObject *parent = nullptr);
    ~PathExpression() override;

    /** The text of the chosen parts, joined by dots; empty for no parts. */
    QString getString(PathExpression::Parts parts) const;
    /** Replaces the chosen parts; missing ones at the end match everything. */
    void setString(QString text, PathExpression::Parts parts);
    /** Replaces the whole expression; missing parts at the end match everything. */
    void setString(QString text);
    /**
     * Sets a text that is still being typed: its last part matches as a prefix, and parts that it
     * has not reached yet match everything and have no text.
     */
    void setStringPrefix(QString prefix, PathExpression::Parts parts);
    /** Ends an edit: a prefix counts as a whole text from now on. */
    void completeEditing();
    /** Makes the chosen parts match everything. */
    void setWildCard(PathExpression::Parts parts);
    /** Whether all chosen parts match everything. */
    bool isWildCard(PathExpression::Parts parts) const;

    /**
     * The texts of the chosen parts of all that the expression matches, without duplicates, sorted
     * as people sort: "item9" before "item10".
     */
    QStringList getMatchingExpressionsStringList(PathExpression::Parts parts) const;
    QList<const MessageInfo *> getMatchingMessageInfos() const;
    QList<const FieldInfo *> getMatchingFieldInfos() const;

    /** Sets the expression so that it matches exactly this type; null matches nothing. */
    void setupToMatchUnique(const MessageInfo *messageInfo);
    /** Sets the expression so that it matches exactly this field; null matches nothing. */
    void setupToMatchUnique(const FieldInfo *fieldInfo);
    /** Whether types that occur only inside other messages are matched too; initially not. */
    void setConsiderSubMessages(bool consider);

Q_SIGNALS:
    /** The text of \a parts has changed. */
    void partsChanged(PathExpression::Parts parts);
    /** The text has changed; \a expression is the new text of all parts. */
    void expressionChanged(const QString &expression);
    /** What the expression matches may now be different. */
    void matchesMayHaveChanged();

private:
    void setTexts(const QString &text, Parts parts, bool prefix);
    void apply(std::array<QString, 3> texts, Parts prefixPart);
    void announce();

    std::unique_ptr<corvane::PathExpressionData> d;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(PathExpression::Parts)
