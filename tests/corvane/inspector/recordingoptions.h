#pragma once

#include "options.h"
#include "testcase.h"

#include <QFile>

namespace corvane::test {

/** Those that load and read the recording that the project brings. */
inline Options recordingOptions()
{
    Options options;
    options.definitions = {sourceFile(QStringLiteral("examples/recording/rover.xml"))};
    options.overlays = {sourceFile(QStringLiteral("examples/recording/rover.overlay.json"))};
    options.source
        = SourceAddress::parse(sourceFile(QStringLiteral("examples/recording/rover.tlog"))).address;
    return options;
}

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

} // namespace corvane::test
