#include "fieldinfo.h"
#include "messageinfo.h"
#include "pathexpression.h"
#include "testcase.h"
#include "testformat.h"

#include <QSignalSpy>

using namespace corvane::test;

namespace {

const char types[] = R"(
    Position
      lat    double
      status uint8
        armed bits 0
      sat    Satellite
    Pose
      lat    double
    Satellite part
      id     uint8
)"
                     "    'odd.name *'\n"
                     "      'a\"b' int8\n";

const auto format = PathExpression::FormatPart;
const auto message = PathExpression::MessagePart;
const auto field = PathExpression::FieldPart;

QStringList namesOf(const QList<const MessageInfo *> &infos)
{
    QStringList names;
    for (const MessageInfo *info : infos)
        names += info->getName();
    return names;
}

QStringList namesOf(const QList<const FieldInfo *> &infos)
{
    QStringList names;
    for (const FieldInfo *info : infos)
        names += info->getName();
    return names;
}

} // namespace

class TestPathExpression : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void parts_haveTheirValues();
    void fresh_matchesEverything();
    void setString_whole_data();
    void setString_whole();
    void setString_ofParts_data();
    void setString_ofParts();
    void messages_matching_data();
    void messages_matching();
    void fields_matching_data();
    void fields_matching();
    void prefix_matchesUntilCompleted();
    void prefix_isKeptAsTyped();
    void prefix_ofSeveralParts_data();
    void prefix_ofSeveralParts();
    void options_areSortedAsPeopleSort();
    void anyText_isAccepted();
    void oddNames_leadBack();
    void options_ofOddDigits_haveOneOrder();
    void slot_thatChangesTheExpression_isToldOnce();
    void slot_thatDeletesTheExpression();
    void partBehindAPrefix_leavesNoHole();
    void subMessages_onlyWhenConsidered();
    void options_withoutDuplicates();
    void wildCards_ofParts();
    void setupToMatchUnique_leadsBack();
    void setupToMatchUnique_null_matchesNothing();
    void signals_tellWhatChanged();
    void signals_ofSameText_areNotSent();
    void catalogueChange_mayChangeMatches();

private:
    const TestFormat demo{"Demo", types};
    const TestFormat other{"Other", "Position\n lat double\n"};
};

void TestPathExpression::parts_haveTheirValues()
{
    QCOMPARE(static_cast<int>(PathExpression::AllParts), 7);
    QCOMPARE(static_cast<int>(format | message), 3);
    QCOMPARE(PathExpression::staticMetaObject.indexOfSignal("partsChanged(PathExpression::Parts)"),
             PathExpression::staticMetaObject.methodOffset());
}

void TestPathExpression::fresh_matchesEverything()
{
    const PathExpression expression;
    QCOMPARE(expression.getString(PathExpression::AllParts), "*.*.*");
    QVERIFY(expression.isWildCard(PathExpression::AllParts));
    QCOMPARE(namesOf(expression.getMatchingMessageInfos()),
             QStringList({"Position", "Pose", "odd.name *", "Position"}));
}

void TestPathExpression::setString_whole_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");

    QTest::newRow("all parts") << "Demo.Position.lat"
                               << "Demo.Position.lat";
    QTest::newRow("deeper") << "Demo.Position.status.armed"
                            << "Demo.Position.status.armed";
    QTest::newRow("no field") << "Demo.Position"
                              << "Demo.Position.*";
    QTest::newRow("format only") << "Demo"
                                 << "Demo.*.*";
    QTest::newRow("quoted") << R"(Demo."odd.name *".x)"
                            << R"(Demo."odd.name *".x)";
    QTest::newRow("dots alone") << ".."
                                << "..";
    QTest::newRow("open quote") << R"(Demo."a.b)"
                                << R"(Demo."a.b.*)";
}

void TestPathExpression::setString_whole()
{
    QFETCH(QString, text);
    QFETCH(QString, result);
    PathExpression expression;
    expression.setString(text);
    QCOMPARE(expression.getString(PathExpression::AllParts), result);
}

void TestPathExpression::setString_ofParts_data()
{
    QTest::addColumn<int>("parts");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");

    QTest::newRow("format") << int(format) << "X"
                            << "X.Position.lat";
    QTest::newRow("message") << int(message) << "X"
                             << "Demo.X.lat";
    QTest::newRow("field, deeper") << int(field) << "x.y"
                                   << "Demo.Position.x.y";
    QTest::newRow("two parts") << int(format | message) << "X.Y"
                               << "X.Y.lat";
    QTest::newRow("two parts, one given") << int(message | field) << "X"
                                          << "Demo.X.*";
    QTest::newRow("no parts") << 0 << "X"
                              << "Demo.Position.lat";
}

void TestPathExpression::setString_ofParts()
{
    QFETCH(int, parts);
    QFETCH(QString, text);
    QFETCH(QString, result);
    PathExpression expression;
    expression.setString("Demo.Position.lat");
    expression.setString(text, PathExpression::Parts::fromInt(parts));
    QCOMPARE(expression.getString(PathExpression::AllParts), result);
}

void TestPathExpression::messages_matching_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("one") << "Demo.Pose" << QStringList({"Pose"});
    QTest::newRow("any format") << "*.Position" << QStringList({"Position", "Position"});
    QTest::newRow("any message") << "Demo.*" << QStringList({"Position", "Pose", "odd.name *"});
    QTest::newRow("quoted") << R"(Demo."odd.name *")" << QStringList({"odd.name *"});
    QTest::newRow("no prefix") << "Demo.Po" << QStringList();
    QTest::newRow("other case") << "demo.pose" << QStringList();
    QTest::newRow("unknown") << "X.Pose" << QStringList();
    QTest::newRow("star in a name") << "Demo.*o*e" << QStringList({"Pose"});
    QTest::newRow("star that finds nothing") << "Demo.Po*x" << QStringList();
    QTest::newRow("any character") << "Demo.P?se" << QStringList({"Pose"});
    QTest::newRow("too few characters") << "Demo.Pos?" << QStringList({"Pose"});
    QTest::newRow("quoted star is no wildcard") << R"(Demo."Po*")" << QStringList();
    QTest::newRow("only quotes") << R"(Demo."")" << QStringList();
    QTest::newRow("many stars") << "Demo.*****e" << QStringList({"Pose"});
    QTest::newRow("empty") << "" << QStringList();
    QTest::newRow("sub-message") << "Demo.Satellite" << QStringList();
}

void TestPathExpression::messages_matching()
{
    QFETCH(QString, text);
    QFETCH(QStringList, names);
    PathExpression expression;
    expression.setString(text);
    QCOMPARE(namesOf(expression.getMatchingMessageInfos()), names);
}

void TestPathExpression::fields_matching_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("one") << "Demo.Pose.lat" << QStringList({"lat"});
    QTest::newRow("of every type") << "Demo.*.lat" << QStringList({"lat", "lat"});
    QTest::newRow("all of a type")
        << "Demo.Position.*" << QStringList({"lat", "status", "armed", "sat"});
    QTest::newRow("sub-field") << "Demo.Position.status.armed" << QStringList({"armed"});
    QTest::newRow("sub-field without parent") << "Demo.Position.armed" << QStringList();
    QTest::newRow("quoted") << "Demo.\"odd.name *\".\"a\\\"b\"" << QStringList({"a\"b"});
    QTest::newRow("unknown") << "Demo.Position.x" << QStringList();
    QTest::newRow("star keeps to its name") << "Demo.Position.s*" << QStringList({"status", "sat"});
    QTest::newRow("parts of one field") << "Demo.Position.status.*" << QStringList({"armed"});
    QTest::newRow("parts of any field") << "Demo.Position.*.*" << QStringList({"armed"});
}

void TestPathExpression::fields_matching()
{
    QFETCH(QString, text);
    QFETCH(QStringList, names);
    PathExpression expression;
    expression.setString(text);
    QCOMPARE(namesOf(expression.getMatchingFieldInfos()), names);
}

void TestPathExpression::prefix_matchesUntilCompleted()
{
    PathExpression expression;
    expression.setString("Demo.*");
    expression.setStringPrefix("Po", message);
    QCOMPARE(namesOf(expression.getMatchingMessageInfos()), QStringList({"Position", "Pose"}));
    expression.setStringPrefix("Pos", message);
    expression.completeEditing();
    QVERIFY(expression.getMatchingMessageInfos().isEmpty());
    QCOMPARE(expression.getString(message), "Pos");
}

void TestPathExpression::prefix_isKeptAsTyped()
{
    PathExpression expression;
    expression.setStringPrefix("Demo.Po", PathExpression::AllParts);
    QCOMPARE(expression.getString(PathExpression::AllParts), "Demo.Po");
    QVERIFY(expression.isWildCard(field));
    const QSignalSpy parts(&expression, &PathExpression::partsChanged);
    expression.completeEditing();
    QCOMPARE(expression.getString(PathExpression::AllParts), "Demo.Po.*");
    QCOMPARE(parts.size(), 1);
    QCOMPARE(parts.constFirst().constFirst().value<PathExpression::Parts>(), field);
    expression.completeEditing();
    QCOMPARE(parts.size(), 1);
}

void TestPathExpression::prefix_ofSeveralParts_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("nothing") << ""
                             << QStringList(
                                    {"lat", "status", "armed", "sat", "lat", "a\"b", "lat"});
    QTest::newRow("format") << "De"
                            << QStringList({"lat", "status", "armed", "sat", "lat", "a\"b"});
    QTest::newRow("message begins")
        << "Demo." << QStringList({"lat", "status", "armed", "sat", "lat", "a\"b"});
    QTest::newRow("message") << "Demo.Posi" << QStringList({"lat", "status", "armed", "sat"});
    QTest::newRow("field") << "Demo.Position.s" << QStringList({"status", "armed", "sat"});
    QTest::newRow("sub-field") << "Demo.Position.status.ar" << QStringList({"armed"});
    QTest::newRow("open quote") << "Demo.\"odd" << QStringList({"a\"b"});
    QTest::newRow("wildcard") << "Demo.*.l" << QStringList({"lat", "lat"});
}

void TestPathExpression::prefix_ofSeveralParts()
{
    QFETCH(QString, typed);
    QFETCH(QStringList, names);
    PathExpression expression;
    expression.setStringPrefix(typed, PathExpression::AllParts);
    QCOMPARE(namesOf(expression.getMatchingFieldInfos()), names);
}

void TestPathExpression::options_areSortedAsPeopleSort()
{
    const TestFormat many("Many", "B10\n  x int8\nb9\n  x int8\na\n  x int8\nB9\n  x int8\n"
                                  "B09x\n  x int8\n");
    PathExpression expression;
    expression.setString("Many");
    QCOMPARE(expression.getMatchingExpressionsStringList(message),
             QStringList({"a", "B9", "b9", "B09x", "B10"}));
}

void TestPathExpression::anyText_isAccepted()
{
    PathExpression expression;
    const QString bits[]
        = {"",    ".", "\"", "\\", "*", "?", "a", "Demo", QString(QChar(0)), QString(QChar(0xD800)),
           "\"\\"};
    for (const QString &first : bits)
        for (const QString &second : bits)
            for (const QString &third : bits) {
                expression.setString(first + second + third);
                expression.getMatchingFieldInfos();
                expression.setStringPrefix(third + first, message | field);
                expression.getMatchingExpressionsStringList(PathExpression::AllParts);
                expression.completeEditing();
            }
    expression.setString(QString(5000, '*') + "x", message);
    QVERIFY(expression.getMatchingMessageInfos().isEmpty());
}

void TestPathExpression::oddNames_leadBack()
{
    const TestFormat odd("O.d*d", QString::fromUtf8("'a.b'\n  '*' int8\n    'x?' bits 0\n"
                                                    "  ' blank ' int8\n  'größe.\\\\' int8\n"
                                                    "'日本'\n  '\"' int8\n"));
    for (const char *path : {"a.b", "日本"}) {
        const MessageInfo *type = odd.type(QString::fromUtf8(path));
        for (const FieldInfo *info : type->getFieldInfos()) {
            PathExpression setUp;
            setUp.setupToMatchUnique(info);
            PathExpression fresh;
            fresh.setString(setUp.getString(PathExpression::AllParts));
            QCOMPARE(fresh.getMatchingFieldInfos(), QList<const FieldInfo *>({info}));
        }
    }
}

void TestPathExpression::options_ofOddDigits_haveOneOrder()
{
    // Digits of other scripts are letters here, or the order would go in circles.
    const TestFormat odd("Odd", QString::fromUtf8("'٥'\n  x int8\n'10'\n  x int8\nx\n  x int8\n"));
    PathExpression expression;
    expression.setString("Odd");
    QCOMPARE(expression.getMatchingExpressionsStringList(message),
             QStringList({"10", "x", QString::fromUtf8("٥")}));
}

void TestPathExpression::slot_thatChangesTheExpression_isToldOnce()
{
    PathExpression expression;
    QStringList told;
    int matches = 0;
    connect(&expression, &PathExpression::partsChanged, this,
            [&] { expression.setWildCard(field); });
    connect(&expression, &PathExpression::expressionChanged, this,
            [&](const QString &text) { told.append(text); });
    connect(&expression, &PathExpression::matchesMayHaveChanged, this, [&] { ++matches; });
    expression.setString("A.B.c");
    QCOMPARE(told, QStringList({"A.B.*", "A.B.*"})); // one for each round of changed parts
    QCOMPARE(matches, 1);
}

void TestPathExpression::slot_thatDeletesTheExpression()
{
    auto *expression = new PathExpression;
    connect(expression, &PathExpression::partsChanged, this, [expression] { delete expression; });
    expression->setString("A.B.c");
}

void TestPathExpression::partBehindAPrefix_leavesNoHole()
{
    PathExpression expression;
    expression.setStringPrefix("Demo", PathExpression::AllParts);
    expression.setString("lat", field);
    QCOMPARE(expression.getString(PathExpression::AllParts), "Demo.*.lat");
}

void TestPathExpression::subMessages_onlyWhenConsidered()
{
    PathExpression expression;
    expression.setString("Demo.Satellite.id");
    const QSignalSpy changes(&expression, &PathExpression::matchesMayHaveChanged);
    QVERIFY(expression.getMatchingFieldInfos().isEmpty());
    expression.setConsiderSubMessages(true);
    expression.setConsiderSubMessages(true);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(namesOf(expression.getMatchingFieldInfos()), QStringList({"id"}));
}

void TestPathExpression::options_withoutDuplicates()
{
    PathExpression expression;
    QCOMPARE(expression.getMatchingExpressionsStringList(format), QStringList({"Demo", "Other"}));
    QCOMPARE(expression.getMatchingExpressionsStringList(message),
             QStringList({"\"odd.name *\"", "Pose", "Position"}));
    QCOMPARE(expression.getMatchingExpressionsStringList(field),
             QStringList({"\"a\\\"b\"", "lat", "sat", "status", "status.armed"}));
    expression.setString("Other");
    QCOMPARE(expression.getMatchingExpressionsStringList(PathExpression::AllParts),
             QStringList({"Other.Position.lat"}));
}

void TestPathExpression::wildCards_ofParts()
{
    PathExpression expression;
    expression.setString("Demo.Position.lat");
    QVERIFY(!expression.isWildCard(message));
    expression.setWildCard(message | field);
    QCOMPARE(expression.getString(PathExpression::AllParts), "Demo.*.*");
    QVERIFY(expression.isWildCard(message | field));
    QVERIFY(!expression.isWildCard(PathExpression::AllParts));
}

void TestPathExpression::setupToMatchUnique_leadsBack()
{
    for (const char *name : {"Position", "Pose", "Satellite", "odd.name *"}) {
        const MessageInfo *type = demo.type(QLatin1String(name));
        PathExpression setUp;
        setUp.setupToMatchUnique(type);
        PathExpression fresh;
        fresh.setConsiderSubMessages(true);
        fresh.setString(setUp.getString(PathExpression::Parts::fromInt(3)));
        QCOMPARE(fresh.getMatchingMessageInfos(), QList<const MessageInfo *>({type}));
        for (const FieldInfo *info : type->getFieldInfos()) {
            setUp.setupToMatchUnique(info);
            fresh.setString(setUp.getString(PathExpression::AllParts));
            QCOMPARE(fresh.getMatchingFieldInfos(), QList<const FieldInfo *>({info}));
        }
    }
}

void TestPathExpression::setupToMatchUnique_null_matchesNothing()
{
    PathExpression expression;
    expression.setupToMatchUnique(static_cast<const MessageInfo *>(nullptr));
    QVERIFY(expression.getMatchingMessageInfos().isEmpty());
    expression.setWildCard(PathExpression::AllParts);
    expression.setupToMatchUnique(static_cast<const FieldInfo *>(nullptr));
    QVERIFY(expression.getMatchingFieldInfos().isEmpty());
}

void TestPathExpression::signals_tellWhatChanged()
{
    PathExpression expression;
    const QSignalSpy parts(&expression, SIGNAL(partsChanged(PathExpression::Parts)));
    const QSignalSpy texts(&expression, SIGNAL(expressionChanged(QString)));
    const QSignalSpy matches(&expression, SIGNAL(matchesMayHaveChanged()));

    expression.setString("Demo.Position");
    QCOMPARE(parts.constLast().constFirst().value<PathExpression::Parts>(), format | message);
    QCOMPARE(texts.constLast().constFirst().toString(), "Demo.Position.*");
    expression.setString("lat", field);
    QCOMPARE(parts.constLast().constFirst().value<PathExpression::Parts>(), field);
    QCOMPARE(parts.size(), 2);
    QCOMPARE(texts.size(), 2);
    QCOMPARE(matches.size(), 2);
}

void TestPathExpression::signals_ofSameText_areNotSent()
{
    PathExpression expression;
    expression.setString("Demo.Pos");
    const QSignalSpy parts(&expression, &PathExpression::partsChanged);
    const QSignalSpy matches(&expression, &PathExpression::matchesMayHaveChanged);

    expression.setString("Demo.Pos");
    QCOMPARE(matches.size(), 0);
    expression.setStringPrefix("Pos", message);
    QCOMPARE(matches.size(), 1);
    expression.completeEditing();
    QCOMPARE(matches.size(), 2);
    QCOMPARE(parts.size(), 0);
}

void TestPathExpression::catalogueChange_mayChangeMatches()
{
    const PathExpression expression;
    const QSignalSpy matches(&expression, &PathExpression::matchesMayHaveChanged);
    {
        const TestFormat added("Added", "A\n");
        QCOMPARE(matches.size(), 1);
        QVERIFY(namesOf(expression.getMatchingMessageInfos()).contains("A"));
    }
    QCOMPARE(matches.size(), 2);
    QVERIFY(!namesOf(expression.getMatchingMessageInfos()).contains("A"));
}

CORVANE_TEST_MAIN(TestPathExpression)

#include "tst_pathexpression.moc"
