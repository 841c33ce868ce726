#include "corvane.h"
#include "plotseries.h"
#include "testcase.h"
#include "testformat.h"

#include <QApplication>
#include <QColor>

#include <algorithm>
#include <cmath>

using namespace corvane;
using namespace corvane::test;

class tst_plotseries : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void values_becomeSamples();
    void absentValue_isAGap();
    void values_ofEveryNumericType_data();
    void values_ofEveryNumericType();
    void lastValue_isReadAsPeopleRead();
    void valueAtATime_isTheNewestUntilThen();
    void confidential_showsNothingUntilAllowed();
    void confidentialInsideAnother_showsNothing();
    void unknownField_saysSo();
    void infinite_saysSo();
    void colors_areReadableOnLightAndDark();
    void pens_tellTheSeriesApart();
};

namespace {

const char types[] = R"(
    Position
      height  double optional unit "m"
      mode    uint8 {Manual=0, Auto=2}
      i64     int64
      u64     uint64
      f       float
      b       bool
      bits    uint8
        high  bits 4..7
      samples int16[]
      name    text
      secret  int32 confidential
      hidden  Part confidential
    Part part
      x       int8
)";

class Fixture
{
public:
    explicit Fixture(const QString &field)
        : series("Demo.Position." + field, 0)
    {
    }

    void send(const QString &text, qint64 timeUs = 1)
    {
        series.process(format.message(text), timeUs);
    }

    /** The samples, gaps as "-". */
    QString samples() const
    {
        QStringList texts;
        for (const Sample &sample : series.getStore())
            texts += sample.isGap() ? QStringLiteral("-") : QString::number(sample.value);
        return texts.join(QLatin1Char(' '));
    }

    TestFormat format{QStringLiteral("Demo"), QLatin1String(types)};
    PlotSeries series;
};

/** Shows confidential content as long as it lives. */
class Allowed
{
public:
    Allowed() { Corvane::setConfidentialInformationDisplayEnabled(true); }

    ~Allowed() { Corvane::setConfidentialInformationDisplayEnabled(false); }

    Q_DISABLE_COPY(Allowed)
};

/** Relative luminance as WCAG 2.1 defines it. */
double luminanceOf(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
           + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double ratio = (luminanceOf(a) + 0.05) / (luminanceOf(b) + 0.05);
    return std::max(ratio, 1 / ratio);
}

} // namespace

void tst_plotseries::values_becomeSamples()
{
    Fixture fixture("height");
    QCOMPARE(fixture.series.getStateText(), "Not received yet");
    fixture.send("Position{height: 1.5}", 10);
    fixture.send("Position{height: -2}", 20);
    QCOMPARE(fixture.samples(), "1.5 -2");
    QCOMPARE(fixture.series.getStore().back().timeUs, 20);
    QCOMPARE(fixture.series.getStateText(), "Received");
    QCOMPARE(fixture.series.getUnit(), "m");
    QCOMPARE(fixture.series.getName(), "Position.height");
}

void tst_plotseries::absentValue_isAGap()
{
    Fixture fixture("height");
    fixture.send("Position{height: 1}", 1);
    fixture.send("Position{}", 2);
    QCOMPARE(fixture.series.getStateText(), "Absent in the last message");
    QCOMPARE(fixture.series.getLastValueText(), "");
    fixture.send("Position{height: 3}", 3);
    QCOMPARE(fixture.samples(), "1 - 3");
}

void tst_plotseries::values_ofEveryNumericType_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("message");
    QTest::addColumn<double>("value");
    QTest::newRow("int64") << "i64"
                           << "Position{i64: -9007199254740992}" << -9007199254740992.0;
    QTest::newRow("uint64") << "u64"
                            << "Position{u64: 18446744073709551615}" << 18446744073709551616.0;
    QTest::newRow("float") << "f"
                           << "Position{f: 0.5}" << 0.5;
    QTest::newRow("bool") << "b"
                          << "Position{b: true}" << 1.0;
    QTest::newRow("enum") << "mode"
                          << "Position{mode: Auto}" << 2.0;
    QTest::newRow("bits") << "bits.high"
                          << "Position{bits: 0x73}" << 7.0;
    QTest::newRow("element") << "samples[1]"
                             << "Position{samples: [5, 6]}" << 6.0;
}

void tst_plotseries::values_ofEveryNumericType()
{
    QFETCH(QString, field);
    QFETCH(QString, message);
    QFETCH(double, value);
    Fixture fixture(field);
    fixture.send(message);
    QCOMPARE(fixture.series.getStore().size(), 1U);
    QCOMPARE(fixture.series.getStore().front().value, value);
}

void tst_plotseries::lastValue_isReadAsPeopleRead()
{
    Fixture fixture("mode");
    fixture.send("Position{mode: Auto}");
    QCOMPARE(fixture.series.getLastValueText(), "Auto");
    QVERIFY(fixture.series.isStepped());
}

void tst_plotseries::valueAtATime_isTheNewestUntilThen()
{
    Fixture fixture("height");
    fixture.send("Position{height: 0.1}", 10);
    fixture.send("Position{}", 20);
    QCOMPARE(fixture.series.getValueText(9), "");
    QCOMPARE(fixture.series.getValueText(15), "0.1");
    QCOMPARE(fixture.series.getValueText(25), "none");
}

void tst_plotseries::confidential_showsNothingUntilAllowed()
{
    Fixture fixture("secret");
    fixture.send("Position{secret: 5}", 1);
    QVERIFY(fixture.series.isHidden());
    QCOMPARE(fixture.samples(), "-");
    QCOMPARE(fixture.series.getStateText(), "Confidential, not shown");
    QCOMPARE(fixture.series.getLastValueText(), "");
    {
        const Allowed allowed;
        fixture.send("Position{secret: 6}", 2);
        QVERIFY(!fixture.series.isHidden());
        QCOMPARE(fixture.series.getLastValueText(), "6");
        QCOMPARE(fixture.series.getValueText(2), "6");
    }
    QVERIFY(fixture.series.isHidden());
    QCOMPARE(fixture.series.getLastValueText(), "");
    QCOMPARE(fixture.series.getValueText(2), "");
}

void tst_plotseries::confidentialInsideAnother_showsNothing()
{
    Fixture fixture("hidden.x");
    fixture.send("Position{hidden: {x: 5}}");
    QVERIFY(fixture.series.isHidden());
    QCOMPARE(fixture.samples(), "-");
}

void tst_plotseries::unknownField_saysSo()
{
    for (const char *path : {"Gone.A.x", "Demo.Position.name"}) {
        const TestFormat format("Demo", QLatin1String(types));
        const PlotSeries series(path, 0);
        QCOMPARE(series.getType(), nullptr);
        QCOMPARE(series.getName(), path);
        QCOMPARE(series.getStateText(), "Not described by the loaded definitions, or not a number");
    }
}

void tst_plotseries::infinite_saysSo()
{
    Fixture fixture("f");
    fixture.send("Position{f: inf}");
    QCOMPARE(fixture.samples(), "-");
    QCOMPARE(fixture.series.getStateText(), "No finite number");
}

void tst_plotseries::colors_areReadableOnLightAndDark()
{
    for (int number = 0; number < PlotSeries::colorCount; ++number) {
        const QColor color = PlotSeries("x", number).getPen().color();
        QVERIFY(contrast(color, Qt::white) >= 3.0);
        QVERIFY(contrast(color, QColor(0x1e, 0x1e, 0x1e)) >= 3.0);
    }
}

void tst_plotseries::pens_tellTheSeriesApart()
{
    QList<QPen> pens;
    for (int number = 0; number < 40; ++number) {
        const QPen pen = PlotSeries("x", number).getPen();
        QVERIFY(!pens.contains(pen));
        pens.append(pen);
    }
}

CORVANE_GUI_TEST_MAIN(tst_plotseries)
#include "tst_plotseries.moc"
