#include "fuzzchecks.h"

#include "decodedmessage.h"
#include "fieldinfo.h"
#include "jsonwriter.h"
#include "messageinfo.h"
#include "messageprinter.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <cstdlib>

namespace corvane::fuzz {

namespace {

// A type may hold thousands of elements in a few bytes.
constexpr unsigned elementsToRead = 64;

void readValues(const Message *message)
{
    for (const FieldInfo *field : message->getInfo()->getFieldInfos()) {
        const unsigned count = field->getNumberOfValues(message);
        for (unsigned index = 0; index < qMin(count, elementsToRead); ++index) {
            field->getValueText(message, index, false);
            quint32 offset = 0;
            quint32 length = 0;
            field->getByteRange(message, index, &offset, &length);
            const FieldValue value = field->getValue(message, index);
            if (value.getSubMessage() != nullptr)
                readValues(value.getSubMessage());
        }
        require(!field->getValue(message, count).isValid(), "there is no value behind the last");
    }
}

void checkJson(const Message *message)
{
    QJsonParseError error;
    const QByteArray json = toJson(message);
    require(!json.contains('\n'), "a line has no line break");
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    // The reader's own limit is no mistake of the text.
    require(document.isObject() || error.error == QJsonParseError::DeepNesting, json.constData());
}

} // namespace

void makeApplication()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    static const QCoreApplication application(count, arguments);
}

void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

void requireEqual(const QString &left, const QString &right, const char *what)
{
    if (left == right)
        return;
    std::fprintf(stderr, "%s\n--- differs from\n%s\n", qPrintable(left), qPrintable(right));
    require(false, what);
}

void readAll(const Message *message)
{
    test::printed(message);
    readValues(message);
    checkJson(message);
}

} // namespace corvane::fuzz
