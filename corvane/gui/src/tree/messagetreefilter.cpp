#include "messagetreefilter.h"

#include "fieldinfo.h"
#include "memleaktracer.h"
#include "message.h"
#include "messageinfo.h"

#include <algorithm>

MessageTreeFilter::MessageTreeFilter(QObject *parent)
    : QObject(parent)
{
    MemLeakTracer::getInstance()->doAllocateObject(QStringLiteral("MessageTreeFilter"));
}

MessageTreeFilter::~MessageTreeFilter()
{
    MemLeakTracer::getInstance()->doDeallocateObject(QStringLiteral("MessageTreeFilter"));
}

QString MessageTreeFilter::getSearchString() const
{
    return searchString;
}

void MessageTreeFilter::setSearchString(QString searchString)
{
    if (searchString == this->searchString)
        return;
    this->searchString = std::move(searchString);
    Q_EMIT changed();
}

bool MessageTreeFilter::isInFilter(const Message *message)
{
    if (searchString.isEmpty())
        return true;
    // An element may have come without content.
    if (message == nullptr)
        return false;
    for (const FieldInfo *field : message->getInfo()->getFieldInfos())
        for (unsigned int i = field->getNumberOfValues(message); i > 0; --i)
            if (field->getValueText(message, i - 1, true) == searchString)
                return true;
    return false;
}

bool MessageTreeFilter::isLoadedFor(const MessageInfo *messageInfo)
{
    if (searchString.isEmpty())
        return false;
    const auto fields = messageInfo->getFieldInfos();
    return std::any_of(fields.begin(), fields.end(), [this](const FieldInfo *field) {
        return field->isSymbolicRepresentation(searchString);
    });
}
