#pragma once

#include <memory>

namespace corvane {

struct ParsedExpression;

/** An expression made ready to be calculated many times, on any thread. */
class Calculation
{
public:
    /** Null where the expression cannot be calculated. */
    static std::unique_ptr<Calculation> create(const ParsedExpression &expression);
    ~Calculation();

    /**
     * \a operands: the numbers of the expression's references, in their order. Division by zero
     * and the like give infinities and NaN, as in IEEE 754.
     */
    double calculate(const double *operands) const;

private:
    struct Engine;

    explicit Calculation(std::unique_ptr<Engine> engine);

    std::unique_ptr<Engine> engine;
};

} // namespace corvane
