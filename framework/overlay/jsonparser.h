#pragma once

#include "jsonsource.h"

#include <optional>

namespace corvane {

/**
 * Reads the one JSON value that \a source holds, strictly: UTF-8, no comments, no name twice in an
 * object, at most 64 levels deep, at most 200,000 values. Nothing, and errors in \a source, where
 * it holds something else.
 */
std::optional<JsonNode> parseJson(JsonSource &source);

} // namespace corvane
