#pragma once

#include <QStringList>
#include <QTreeWidget>

namespace corvane::test {

/**
 * A row and all below as a person sees them: the texts of the columns joined by " | ", each level
 * indented by two blanks, "+" before a row that is collapsed over others, "~" before a hidden one.
 */
inline void printRow(QTreeWidgetItem *item, const QString &indentation, QStringList &lines)
{
    QStringList texts;
    for (int column = 0; column < item->treeWidget()->columnCount(); ++column)
        texts += item->text(column);
    QString mark = item->childCount() > 0 && !item->isExpanded() ? QStringLiteral("+") : QString();
    if (item->isHidden())
        mark += QLatin1Char('~');
    lines += indentation + mark + texts.join(QStringLiteral(" | "));
    for (int i = 0; i < item->childCount(); ++i)
        printRow(item->child(i), indentation + QStringLiteral("  "), lines);
}

/** The whole tree; compare it with a literal through lines(). */
inline QString printed(const QTreeWidget &tree)
{
    QStringList lines;
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        printRow(tree.topLevelItem(i), {}, lines);
    for (QString &line : lines)
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
    return lines.join(QLatin1Char('\n'));
}

/** A literal without its first line break, its last one, and the indentation of its first line. */
inline QString lines(const char *literal)
{
    QStringList all = QString::fromUtf8(literal).split(QLatin1Char('\n'));
    all.removeFirst();
    while (!all.isEmpty() && all.constLast().trimmed().isEmpty())
        all.removeLast();
    qsizetype indentation = 0;
    while (!all.isEmpty() && indentation < all.constFirst().size()
           && all.constFirst().at(indentation) == QLatin1Char(' '))
        ++indentation;
    for (QString &line : all)
        line = line.mid(indentation);
    return all.join(QLatin1Char('\n'));
}

} // namespace corvane::test
