#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

namespace corvane::test {

/**
 * Base of all test classes. A case fails when it causes a warning that it did not announce with
 * expectWarning(), or when it leaves the allocation accounting of a class other than it found it.
 *
 * A test class that overrides init() or cleanup() calls these of the base.
 */
class TestCase : public QObject
{
    Q_OBJECT

protected:
    /** The next warnings of the case may include one that contains \a text, and one must. */
    void expectWarning(const QString &text);

protected Q_SLOTS:
    void init();
    void cleanup();

private:
    QMap<QString, qint64> liveObjectsBefore;
    QStringList expectedWarnings;
};

/** Runs the cases of \a testObject; the result is the exit code of the program. */
int runTests(QObject &testObject, int argc, char *argv[]);

/**
 * A file of the public sample data that lies beside the checkout, or in CORVANE_TEST_DATA; empty
 * when it is not there. The case then skips itself.
 */
QString sampleFile(const QString &relativePath);

/** A file of the project's own sources. */
QString sourceFile(const QString &relativePath);

} // namespace corvane::test

/** main() of a test program without windows. */
#define CORVANE_TEST_MAIN(TestClass)                                                               \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        QCoreApplication application(argc, argv);                                                  \
        TestClass testObject;                                                                      \
        return corvane::test::runTests(testObject, argc, argv);                                    \
    }

/** main() of a test program with widgets; includes <QApplication> itself before. */
#define CORVANE_GUI_TEST_MAIN(TestClass)                                                           \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        QApplication application(argc, argv);                                                      \
        TestClass testObject;                                                                      \
        return corvane::test::runTests(testObject, argc, argv);                                    \
    }

/** Skips the case, saying so, when the sample file is not there; else sets \a variable to it. */
#define CORVANE_SAMPLE_FILE(variable, relativePath)                                                \
    const QString variable = corvane::test::sampleFile(QStringLiteral(relativePath));              \
    if (variable.isEmpty())                                                                        \
    QSKIP("sample data not found: " relativePath)
