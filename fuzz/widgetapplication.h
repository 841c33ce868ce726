#pragma once

#include <QApplication>

namespace corvane::fuzz {

/** An application with widgets, which says nothing; the same at each call. */
inline void makeWidgetApplication()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    static const auto *const application = new QApplication(count, arguments);
    Q_UNUSED(application)
    // Qt tells of each size that it does not like, and of views without columns.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
}

} // namespace corvane::fuzz
