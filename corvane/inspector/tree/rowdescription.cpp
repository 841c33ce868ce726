#include "rowdescription.h"

#include "corvane.h"
#include "descriptions.h"
#include "messageinfo.h"
#include "messagetreefilter.h"
#include "messagetreewidgetitem.h"
#include "rowplace.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace corvane {

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(corvane::RowDescription)
};

QString kindOf(const FieldInfo *field)
{
    const QString type = field->getType().toShortString();
    const QString &unit = field->getData()->unit;
    const QString list
        = field->isRepeated() && !field->isStringField() ? Words::tr("list of %1").arg(type) : type;
    return unit.isEmpty() ? list : Words::tr("%1 in %2").arg(list, unit);
}

QString absenceOf(const FieldInfo *field)
{
    if (field->isRepeated() && !field->isOptional())
        return Words::tr("Empty in the newest message.");
    if (field->isVirtual())
        return Words::tr("Absent: what it is computed from is not in the newest message.");
    const QString &choice = field->getData()->choice;
    if (!choice.isEmpty())
        return Words::tr("Absent: the newest message has another case of \"%1\", or none.")
            .arg(choice);
    return Words::tr("Absent: the newest message came without this field.");
}

/** Formats say at the end of a value that it is cut, and how long it is. */
QString cutOf(const QString &value)
{
    static const QRegularExpression cut(QStringLiteral("… \\(cut, (\\d+) (bytes|characters)\\)$"));
    const QRegularExpressionMatch match = cut.match(value);
    if (!match.hasMatch())
        return {};
    return match.captured(2) == QLatin1String("bytes")
               ? Words::tr("Cut: only the beginning of %1 bytes is shown.").arg(match.captured(1))
               : Words::tr("Cut: only the beginning of %1 characters is shown.")
                     .arg(match.captured(1));
}

QString filteredOf(AbstractMessageTreeWidgetItem *row)
{
    if (row->getFilter() == nullptr || row->getFilter()->getSearchString().isEmpty())
        return {};
    int hidden = 0;
    for (int i = 0; i < row->childCount(); ++i)
        hidden += row->child(i)->isHidden() ? 1 : 0;
    if (hidden == 0)
        return {};
    return Words::tr("%1 of %2 elements do not pass the filter.")
        .arg(hidden)
        .arg(row->childCount());
}

QString stateOf(const RowPlace &place, AbstractMessageTreeWidgetItem *row)
{
    const Message *message = topRowOf(row)->getDisplayedMessage();
    if (message == nullptr)
        return Words::tr("No message of this type has come yet.");
    const FieldInfo *field = place.getField();
    if (field == nullptr)
        return {};
    if (field->isConfidential() && !Corvane::confidentialInformationDisplayEnabled())
        return Words::tr("Hidden: what it holds is confidential.");
    const Message *holder = place.getHolder(message);
    if (holder == nullptr)
        return Words::tr("Absent: the newest message came without the sub-message around it.");
    const unsigned int count = field->getNumberOfValues(holder);
    if (count == 0)
        return absenceOf(field);
    if (place.getElement() < 0 && field->isRepeated() && !field->isStringField())
        return filteredOf(row);
    return cutOf(row->getValueText());
}

} // namespace

QStringList describeRow(QTreeWidgetItem *row)
{
    const auto place = RowPlace::of(row);
    auto *messageTreeRow = dynamic_cast<AbstractMessageTreeWidgetItem *>(row);
    if (!place || messageTreeRow == nullptr)
        return row != nullptr ? QStringList(row->toolTip(0)) : QStringList();
    const FieldInfo *field = place->getField();
    QStringList sentences{place->getPath()};
    if (field != nullptr)
        sentences += kindOf(field);
    sentences += stateOf(*place, messageTreeRow);
    sentences += field != nullptr ? firstSentence(field->getData()->description)
                                  : place->type->getShortDescriptiveText();
    sentences.removeAll(QString());
    return sentences;
}

} // namespace corvane
