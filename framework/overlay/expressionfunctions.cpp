#include "expressionfunctions.h"

#include <algorithm>
#include <array>

namespace corvane {

namespace {

constexpr int maximumArguments = 32;

constexpr std::array functions = {
    ExpressionFunction{"abs", 1, 1},
    ExpressionFunction{"acos", 1, 1},
    ExpressionFunction{"acosh", 1, 1},
    ExpressionFunction{"asin", 1, 1},
    ExpressionFunction{"asinh", 1, 1},
    ExpressionFunction{"atan", 1, 1},
    ExpressionFunction{"atan2", 2, 2},
    ExpressionFunction{"atanh", 1, 1},
    ExpressionFunction{"avg", 1, maximumArguments},
    ExpressionFunction{"ceil", 1, 1},
    ExpressionFunction{"cos", 1, 1},
    ExpressionFunction{"cosh", 1, 1},
    ExpressionFunction{"exp", 1, 1},
    ExpressionFunction{"floor", 1, 1},
    ExpressionFunction{"hypot", 2, 2},
    ExpressionFunction{"ln", 1, 1},
    ExpressionFunction{"log10", 1, 1},
    ExpressionFunction{"log2", 1, 1},
    ExpressionFunction{"max", 1, maximumArguments},
    ExpressionFunction{"min", 1, maximumArguments},
    ExpressionFunction{"mod", 2, 2},
    ExpressionFunction{"round", 1, 1},
    ExpressionFunction{"sign", 1, 1},
    ExpressionFunction{"sin", 1, 1},
    ExpressionFunction{"sinh", 1, 1},
    ExpressionFunction{"sqrt", 1, 1},
    ExpressionFunction{"sum", 1, maximumArguments},
    ExpressionFunction{"tan", 1, 1},
    ExpressionFunction{"tanh", 1, 1},
    ExpressionFunction{"trunc", 1, 1},
};

} // namespace

const ExpressionFunction *findExpressionFunction(const QString &name)
{
    const auto hasName
        = [&](const ExpressionFunction &function) { return name == QLatin1String(function.name); };
    const auto found = std::find_if(functions.begin(), functions.end(), hasName);
    return found == functions.end() ? nullptr : &*found;
}

QStringList expressionFunctionNames()
{
    QStringList names;
    for (const ExpressionFunction &function : functions)
        names.append(QLatin1String(function.name));
    return names;
}

} // namespace corvane
