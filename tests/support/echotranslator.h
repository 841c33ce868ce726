#pragma once

#include <QCoreApplication>
#include <QTranslator>

namespace corvane::test {

/** While it lives, every translated text reads "context|text", so that a test sees its context. */
class EchoTranslator : public QTranslator
{
public:
    EchoTranslator() { QCoreApplication::installTranslator(this); }

    ~EchoTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QLatin1String(context) + QLatin1Char('|') + QLatin1String(text);
    }
};

} // namespace corvane::test
