#include "corvaneevent.h"

namespace corvane {
struct CorvaneEventData
{
    CorvaneEvent::Type type = CorvaneEvent::Other;
    QString message;
};
} // namespace corvane

CorvaneEvent::CorvaneEvent(Type type, const QString &message)
    : d(std::make_shared<corvane::CorvaneEventData>(corvane::CorvaneEventData{type, message}))
{
}

CorvaneEvent::CorvaneEvent(const CorvaneEvent &other) = default;
CorvaneEvent &CorvaneEvent::operator=(const CorvaneEvent &other) = default;
CorvaneEvent::~CorvaneEvent() = default;

CorvaneEvent::Type CorvaneEvent::getType() const
{
    return d->type;
}

QString CorvaneEvent::getMessage() const
{
    return d->message;
}
