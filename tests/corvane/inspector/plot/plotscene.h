#pragma once

#include "plotview.h"
#include "testformat.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace corvane::test {

inline const char types[] = R"(
    Position
      height double optional unit "m"
      depth  double unit "m"
      speed  float unit "m/s"
      mode   uint8 {Manual=0, Auto=2}
      secret int32 confidential
)";

constexpr qint64 startUs = 1'700'000'000'000'000;
constexpr qint64 secondUs = 1'000'000;

/** A plot in a window, and what is sent to it. */
class Shown
{
public:
    explicit Shown(const QStringList &fields = {QStringLiteral("height")})
    {
        for (const QString &field : fields) {
            const auto number = static_cast<int>(series.size());
            series.push_back(std::make_unique<PlotSeries>("Demo.Position." + field, number));
        }
        view.resize(600, 300);
        view.rebuild();
        view.show();
        view.setFocus();
        draw();
    }

    /** Sends \a text at \a seconds after the start. */
    void send(const QString &text, double seconds)
    {
        const auto message = format.message(text);
        for (const auto &one : series)
            one->process(message, startUs + qRound64(seconds * 1e6));
        view.requestRefresh();
    }

    void sendRamp(int count, double interval = 1.0)
    {
        for (int i = 0; i < count; ++i)
            send(QStringLiteral("Position{height: %1}").arg(i), i * interval);
        draw();
    }

    void draw()
    {
        QSignalSpy refreshed(&view, &PlotView::refreshed);
        view.requestRefresh();
        refreshed.wait(1000);
    }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&view, static_cast<Qt::Key>(key), modifiers);
        draw();
    }

    /** What is shown, in seconds after the start: "from to". */
    QString window() const
    {
        const auto seconds = [](qint64 timeUs) {
            return QString::number(static_cast<double>(timeUs - startUs) / 1e6);
        };
        return seconds(view.getWindow().getFromUs()) + ' ' + seconds(view.getWindow().getToUs());
    }

    QString placeholder() const
    {
        const auto *label = view.findChild<QLabel *>();
        return label->isVisible() ? label->text() : QString();
    }

    TestFormat format{QStringLiteral("Demo"), QLatin1String(types)};
    PlotSeriesList series;
    PlotView view{series};
};

} // namespace corvane::test
