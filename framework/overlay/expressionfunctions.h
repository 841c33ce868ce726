#pragma once

#include <QString>
#include <QStringList>

namespace corvane {

/** A function that expressions may call. */
struct ExpressionFunction
{
    const char *name;
    int minimumArguments;
    int maximumArguments;
};

/** The function of that name, or null. */
const ExpressionFunction *findExpressionFunction(const QString &name);
/** In alphabetical order. */
QStringList expressionFunctionNames();

} // namespace corvane
