#include "calculation.h"

#include "expressionparser.h"

#include <QMutex>
#include <QMutexLocker>

#include <muParser.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace corvane {

struct Calculation::Engine
{
    explicit Engine(const ParsedExpression &expression);

    QMutex mutex; ///< The parser calculates in memory of its own.
    std::vector<double> variables; ///< What the parser's variables are bound to.
    mu::Parser parser;
};

Calculation::Engine::Engine(const ParsedExpression &expression)
    : variables(expression.references.size())
{
    for (size_t i = 0; i < variables.size(); ++i)
        parser.DefineVar("v" + std::to_string(i), &variables[i]);
    for (size_t i = 0; i < expression.constants.size(); ++i)
        parser.DefineConst("c" + std::to_string(i), expression.constants[i]);
    parser.DefineFun("ceil", static_cast<double (*)(double)>(std::ceil));
    parser.DefineFun("floor", static_cast<double (*)(double)>(std::floor));
    parser.DefineFun("hypot", static_cast<double (*)(double, double)>(std::hypot));
    parser.DefineFun("mod", static_cast<double (*)(double, double)>(std::fmod));
    parser.DefineFun("round", static_cast<double (*)(double)>(std::round));
    parser.DefineFun("trunc", static_cast<double (*)(double)>(std::trunc));
    parser.SetExpr(expression.code);
}

std::unique_ptr<Calculation> Calculation::create(const ParsedExpression &expression)
{
    try {
        auto engine = std::make_unique<Engine>(expression);
        // The first evaluation compiles.
        engine->parser.Eval();
        return std::unique_ptr<Calculation>(new Calculation(std::move(engine)));
    } catch (const mu::ParserError &) {
        return nullptr;
    }
}

Calculation::Calculation(std::unique_ptr<Engine> engine)
    : engine(std::move(engine))
{
}

Calculation::~Calculation() = default;

double Calculation::calculate(const double *operands) const
{
    const QMutexLocker locker(&engine->mutex);
    std::copy_n(operands, engine->variables.size(), engine->variables.begin());
    try {
        return engine->parser.Eval();
    } catch (const mu::ParserError &) {
        return std::numeric_limits<double>::quiet_NaN();
    }
}

} // namespace corvane
