#include "plainmarkup.h"

#include "steadytreewidget.h"

namespace corvane {

namespace {

/** Characters that mean something to a text document, or nothing to anybody. */
bool isUnfit(QChar character)
{
    if (character == QLatin1Char('\n') || character == QLatin1Char('\t'))
        return false;
    return character.category() == QChar::Other_Control
           || character.category() == QChar::Other_NotAssigned
           || character == QChar::ObjectReplacementCharacter;
}

} // namespace

QString plainMarkup(const QString &text)
{
    QString plain = SteadyTreeWidget::shortened(text);
    for (QChar &character : plain)
        if (isUnfit(character))
            character = QChar::ReplacementCharacter;
    return QStringLiteral("<p style=\"white-space: pre-wrap\">") + plain.toHtmlEscaped()
           + QStringLiteral("</p>");
}

} // namespace corvane
