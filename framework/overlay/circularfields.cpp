#include "circularfields.h"

#include "descriptions.h"
#include "names.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <deque>

namespace corvane {

namespace {

constexpr qint64 maximumCost = 1000;
constexpr int maximumDepth = 100;
constexpr qsizetype maximumShownNames = 8;

using Field = const VirtualFieldInfo *;

class Orderer
{
public:
    Orderer(const std::vector<UnboundVirtualField> &fields, JsonSource &source)
        : source(source)
    {
        for (const UnboundVirtualField &field : fields)
            open.insert(field.field, &field);
        for (const UnboundVirtualField &field : fields)
            count(field);
    }

    void completeAll()
    {
        while (!ready.empty() && !source.isFull()) {
            const UnboundVirtualField *next = open.take(ready.front());
            ready.pop_front();
            complete(*next);
        }
        reportCircles();
    }

private:
    void count(const UnboundVirtualField &field)
    {
        int unfinished = 0;
        for (const Field used : field.field->getUsedVirtualFields()) {
            if (!open.contains(used))
                continue;
            ++unfinished;
            users[used].append(field.field);
        }
        waitingFor[field.field] = unfinished;
        if (unfinished == 0)
            ready.push_back(field.field);
    }

    void complete(const UnboundVirtualField &field)
    {
        field.field->complete();
        // What uses a field that is too much would be told the same; its numbers would only grow.
        if (isTooMuch(field))
            return;
        for (const Field user : users.value(field.field))
            if (--waitingFor[user] == 0)
                ready.push_back(user);
    }

    bool isTooMuch(const UnboundVirtualField &field)
    {
        const Field info = field.field;
        if (info->getCost() <= maximumCost && info->getDepth() <= maximumDepth)
            return false;
        source.addError(field.expressionNode->offset,
                        QStringLiteral("%1 takes too much: at most %2 values, those behind other "
                                       "virtual fields included, and %3 virtual fields one behind "
                                       "the other")
                            .arg(quoted(info->getData()->name))
                            .arg(maximumCost)
                            .arg(maximumDepth));
        return true;
    }

    void reportCircles()
    {
        while (!open.isEmpty() && !source.isFull())
            reportCircle(findCircle(firstOpen()));
    }

    Field firstOpen() const
    {
        const auto isBefore
            = [](const UnboundVirtualField *left, const UnboundVirtualField *right) {
                  return left->expressionNode->offset < right->expressionNode->offset;
              };
        return (*std::min_element(open.cbegin(), open.cend(), isBefore))->field;
    }

    // Whoever is left waits for somebody who is left: following that must come round.
    QList<Field> findCircle(Field start) const
    {
        QList<Field> way;
        QSet<Field> seen;
        while (start != nullptr && !seen.contains(start)) {
            way.append(start);
            seen.insert(start);
            start = nextOpen(start);
        }
        return start != nullptr ? way.mid(way.indexOf(start)) : QList<Field>();
    }

    Field nextOpen(Field field) const
    {
        for (const Field used : field->getUsedVirtualFields())
            if (open.contains(used))
                return used;
        return nullptr;
    }

    void reportCircle(const QList<Field> &circle)
    {
        if (circle.isEmpty()) {
            // Waits only for fields that are reported already.
            open.remove(firstOpen());
            return;
        }
        QStringList names;
        for (const Field field : circle)
            names.append(field->getData()->name);
        names.append(names.constFirst());
        if (names.size() > maximumShownNames)
            names = names.mid(0, maximumShownNames - 1) + QStringList(QStringLiteral("..."));
        source.addError(open.value(circle.constFirst())->expressionNode->offset,
                        QStringLiteral("virtual fields that need each other: ")
                            + names.join(QStringLiteral(" -> ")));
        for (const Field field : circle)
            open.remove(field);
    }

    JsonSource &source;
    QHash<Field, const UnboundVirtualField *> open;
    QHash<Field, QList<Field>> users;
    QHash<Field, int> waitingFor;
    std::deque<Field> ready;
};

} // namespace

void completeInOrder(const std::vector<UnboundVirtualField> &fields, JsonSource &source)
{
    Orderer(fields, source).completeAll();
}

} // namespace corvane
