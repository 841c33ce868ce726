#pragma once

#include "recentsources.h"

#include <optional>

class QMimeData;

namespace corvane {

/** This machine's own feed with its definitions, where it is installed or built; else nothing. */
std::optional<SourceChoice> findHostFeed();

/** The files of this machine among what was dropped. */
QStringList localFilesOf(const QMimeData &data);

} // namespace corvane
