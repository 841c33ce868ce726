#include "descriptions.h"
#include "fieldinfo.h"
#include "mavlinkformat.h"
#include "messageinfo.h"
#include "pathexpression.h"
#include "testcase.h"

#include <QFile>
#include <QRegularExpression>

using namespace corvane;
using namespace corvane::test;

/** Path expressions over whole sets of definitions. */
class TestMavlinkPaths : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyTypeAndField_leadsBack();
    void documentedExamples_areTrue();
};

void TestMavlinkPaths::everyTypeAndField_leadsBack()
{
    CORVANE_SAMPLE_FILE(file, "mavlink/definitions/all.xml");
    MavlinkFormat format;
    QVERIFY(format.load(file).errors.isEmpty());
    const auto &types = format.getInfo()->getData()->messages;
    QCOMPARE(types.size(), 391U);
    qsizetype fields = 0;
    PathExpression setUp;
    PathExpression fresh;
    fresh.setConsiderSubMessages(true);
    for (const auto &type : types) {
        setUp.setupToMatchUnique(type.get());
        fresh.setString(setUp.getString(PathExpression::Parts::fromInt(3)));
        QCOMPARE(fresh.getMatchingMessageInfos(), QList<const MessageInfo *>{type.get()});
        for (const FieldInfo *field : type->getFieldInfos()) {
            setUp.setupToMatchUnique(field);
            fresh.setString(setUp.getString(PathExpression::AllParts));
            QCOMPARE(fresh.getMatchingFieldInfos(), QList<const FieldInfo *>{field});
            fields += field->getParentFieldInfo() == nullptr ? 1 : 0;
        }
    }
    QCOMPARE(fields, 3037);
}

void TestMavlinkPaths::documentedExamples_areTrue()
{
    MavlinkFormat format;
    QVERIFY(format.load(sourceFile("examples/recording/rover.xml")).errors.isEmpty());
    QFile page(sourceFile("docs/path-expressions.md"));
    QVERIFY(page.open(QFile::ReadOnly));
    static const QRegularExpression row(R"(^\| `(.+)` \| (\d+) \|$)",
                                        QRegularExpression::MultilineOption);
    auto found = row.globalMatch(QString::fromUtf8(page.readAll()));
    int examples = 0;
    for (; found.hasNext(); ++examples) {
        const auto match = found.next();
        PathExpression expression;
        expression.setString(match.captured(1));
        QVERIFY2(expression.getMatchingFieldInfos().size() == match.captured(2).toInt(),
                 qPrintable(match.captured(0)));
    }
    QVERIFY(examples > 10);
}

CORVANE_TEST_MAIN(TestMavlinkPaths)
#include "tst_mavlinkpaths.moc"
