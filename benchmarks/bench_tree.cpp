// What the message tree and path expressions cost.

#include "catalogue.h"
#include "decodedmessage.h"
#include "descriptions.h"
#include "fieldtype.h"
#include "formatinfo.h"
#include "guibenchmarks.h"
#include "messageinfo.h"
#include "messagetreewidget.h"
#include "messagetreewidgetitem.h"
#include "pathexpression.h"
#include "singlevaluefieldtreewidgetitem.h"
#include "steadytreewidget.h"

#include <QApplication>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <memory>
#include <utility>

namespace {

constexpr int childrenPerRow = 99;

void fill(QTreeWidget &tree, int rows)
{
    tree.setColumnCount(3);
    while (rows > 0) {
        auto *top = new QTreeWidgetItem(&tree, {"Message", "type", "0.5"});
        for (int i = 0; i < childrenPerRow; ++i)
            new QTreeWidgetItem(top, {"field", "double", "0.5"});
        rows -= childrenPerRow + 1;
    }
    tree.expandAll();
}

/** Every \a step-th of the rows below others. */
QList<QTreeWidgetItem *> rowsOf(const QTreeWidget &tree, int step)
{
    QList<QTreeWidgetItem *> rows;
    for (int i = 0; i < tree.topLevelItemCount() * childrenPerRow; i += step)
        rows += tree.topLevelItem(i / childrenPerRow)->child(i % childrenPerRow);
    return rows;
}

/** Changes one cell in every \a step-th row; the painting that follows is not counted. */
void changeCells(benchmark::State &state, QTreeWidget &tree, bool shown, int step)
{
    fill(tree, static_cast<int>(state.range(0)));
    tree.resize(600, 800);
    if (shown)
        tree.show();
    QApplication::processEvents();
    const auto rows = rowsOf(tree, step);
    int round = 0;
    for (auto _ : state) {
        const QString text = QString::number(1000 + ++round);
        for (QTreeWidgetItem *row : rows)
            SteadyTreeWidget::setItemText(row, 2, text);
        state.PauseTiming();
        QApplication::processEvents();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * rows.size());
}

void cellStock(benchmark::State &state)
{
    QTreeWidget tree;
    const int step = static_cast<int>(state.range(0)) / 200; // or it would take minutes
    changeCells(state, tree, true, step);
}

void cellShown(benchmark::State &state)
{
    SteadyTreeWidget tree;
    changeCells(state, tree, true, 1);
}

void cellNotShown(benchmark::State &state)
{
    SteadyTreeWidget tree;
    changeCells(state, tree, false, 1);
}

BENCHMARK(cellStock)->Arg(200)->Arg(10'000)->Arg(100'000);
BENCHMARK(cellShown)->Arg(200)->Arg(10'000)->Arg(100'000);
BENCHMARK(cellNotShown)->Arg(200)->Arg(10'000)->Arg(100'000);

/** Removes the second half of the children of one row. */
void removeHalf(benchmark::State &state, bool expanded)
{
    const int count = static_cast<int>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        auto tree = std::make_unique<SteadyTreeWidget>();
        auto *parent = new QTreeWidgetItem(tree.get(), QStringList("parent"));
        tree->show();
        parent->setExpanded(true);
        for (int i = 0; i < count; ++i) {
            auto *child = new QTreeWidgetItem(parent, QStringList("element"));
            if (expanded) {
                new QTreeWidgetItem(child, QStringList("field"));
                child->setExpanded(true);
            }
        }
        QApplication::processEvents();
        QList<QTreeWidgetItem *> doomed;
        for (int i = count / 2; i < count; ++i)
            doomed += parent->child(i);
        state.ResumeTiming();
        SteadyTreeWidget::removeChildren(parent, doomed);
        QApplication::processEvents();
        state.PauseTiming();
        tree.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * (count / 2));
}

void removeCollapsed(benchmark::State &state)
{
    removeHalf(state, false);
}

void removeExpanded(benchmark::State &state)
{
    removeHalf(state, true);
}

BENCHMARK(removeCollapsed)->Arg(100'000);
BENCHMARK(removeExpanded)->Arg(10'000);

class Field : public FieldInfo
{
public:
    explicit Field(std::unique_ptr<corvane::FieldInfoData> data)
        : FieldInfo(FieldType(FieldType::SignedInteger, 32), std::move(data))
    {
    }

    unsigned int getNumberOfValues(const Message *) const override { return 1; }

    FieldValue getValue(const Message *, unsigned int) const override
    {
        return FieldValue::fromSigned(42, 32);
    }
};

class EmptyMessage : public corvane::DecodedMessage
{
public:
    explicit EmptyMessage(const MessageInfo *info)
        : DecodedMessage(info, unknownTime, 0)
    {
    }
};

/** A format of 400 types with 3,200 fields. */
class WideFormat
{
public:
    static constexpr int types = 400;
    static constexpr int fieldsPerType = 8;

    WideFormat()
    {
        auto data = std::make_unique<corvane::FormatInfoData>();
        data->name = "Wide";
        info = std::make_unique<FormatInfo>(std::move(data));
        for (int i = 0; i < types; ++i) {
            auto typeData = std::make_unique<corvane::MessageInfoData>();
            typeData->name = QStringLiteral("TYPE_%1").arg(i);
            typeData->format = info.get();
            typeData->slot = static_cast<quint32>(i);
            auto *type
                = info->getData()->addMessage(std::make_unique<MessageInfo>(std::move(typeData)));
            for (int j = 0; j < fieldsPerType; ++j) {
                auto fieldData = std::make_unique<corvane::FieldInfoData>();
                fieldData->name = QStringLiteral("field_%1").arg(j);
                type->getData()->addField(std::make_unique<Field>(std::move(fieldData)), type);
            }
        }
        corvane::Catalogue::getInstance()->addFormat(info.get());
    }

    ~WideFormat() { corvane::Catalogue::getInstance()->removeFormat(info.get()); }

    WideFormat(const WideFormat &) = delete;
    WideFormat &operator=(const WideFormat &) = delete;

    MessageInfo *type(int index) const
    {
        return info->getData()->messages.at(static_cast<size_t>(index)).get();
    }

    std::unique_ptr<FormatInfo> info;
};

class RepeatedField : public Field
{
public:
    using Field::Field;

    unsigned int getNumberOfValues(const Message *) const override { return 100'000; }
};

/** The first message with 100,000 elements, up to its first painting. */
void firstElements(benchmark::State &state)
{
    const WideFormat format;
    auto data = std::make_unique<corvane::FieldInfoData>();
    data->name = "elements";
    data->repeated = true;
    MessageInfo *type = format.type(0);
    type->getData()->addField(std::make_unique<RepeatedField>(std::move(data)), type);
    const auto *message = new EmptyMessage(type);
    for (auto _ : state) {
        state.PauseTiming();
        auto tree = std::make_unique<MessageTreeWidget>();
        auto *row = new MessageTreeWidgetItem(tree.get(), type);
        tree->addTopLevelItem(row);
        row->configureInTreeWidget();
        tree->expandAll();
        tree->show();
        QApplication::processEvents();
        state.ResumeTiming();
        tree->processMessage(message);
        QApplication::processEvents();
        state.PauseTiming();
        tree.reset();
        state.ResumeTiming();
    }
    message->removeReference();
}

/** Bytes of a row of a field, and of a plain item, with the same texts. */
void rowMemory(benchmark::State &state)
{
    const WideFormat format;
    constexpr int count = 10'000;
    const auto bytesOf = [](const std::function<QTreeWidgetItem *()> &make) {
        QList<QTreeWidgetItem *> items;
        items.reserve(count);
        const size_t before = mallinfo2().uordblks;
        for (int i = 0; i < count; ++i)
            items.append(make());
        const size_t after = mallinfo2().uordblks;
        qDeleteAll(items);
        return static_cast<double>(after - before) / count;
    };
    MessageTreeWidget tree;
    const FieldInfo *field = format.type(0)->getFieldInfos().constFirst();
    const auto *message = new EmptyMessage(format.type(0));
    for (auto _ : state) {
        state.counters["row"] = bytesOf([&]() -> QTreeWidgetItem * {
            auto *row = new SingleValueFieldTreeWidgetItem(&tree, 0);
            row->setFieldInfo(field);
            row->processMessage(message);
            return row;
        });
        state.counters["plainItem"] = bytesOf([&]() -> QTreeWidgetItem * {
            auto *item = new QTreeWidgetItem;
            item->setText(0, field->getName());
            item->setText(1, field->getType().toShortString());
            item->setText(2, field->getInterpretedString(field->getValue(message, 0), true));
            return item;
        });
    }
    message->removeReference();
}

BENCHMARK(firstElements);
BENCHMARK(rowMemory)->Iterations(1);

/** A message that no row is for. */
void broadcast(benchmark::State &state)
{
    const WideFormat format;
    MessageTreeWidget tree;
    for (int i = 1; i < WideFormat::types; ++i)
        tree.addTopLevelItem(new MessageTreeWidgetItem(&tree, format.type(i)));
    const auto *message = new EmptyMessage(format.type(0));
    for (auto _ : state)
        tree.processMessage(message);
    message->removeReference();
}

/** Half of them name a field, the others have wildcards in two parts. */
void thousandExpressions(benchmark::State &state)
{
    const WideFormat format;
    QStringList texts;
    for (int i = 0; i < 1000; ++i)
        texts += i % 2 == 0 ? QStringLiteral("Wide.TYPE_%1.field_3").arg(i % WideFormat::types)
                            : QStringLiteral("Wide.*_%1*.field_?").arg(i % WideFormat::types);
    PathExpression expression;
    qsizetype found = 0;
    for (auto _ : state)
        for (const QString &text : std::as_const(texts)) {
            expression.setString(text);
            found += expression.getMatchingFieldInfos().size();
        }
    benchmark::DoNotOptimize(found);
}

/** One look at the name of each field of each type, a thousand times. */
void thousandScans(benchmark::State &state)
{
    const WideFormat format;
    const QString wanted = "field_3";
    qsizetype found = 0;
    for (auto _ : state)
        for (int i = 0; i < 1000; ++i)
            for (const auto &type : format.info->getData()->messages)
                for (const FieldInfo *field : type->getData()->fields)
                    found += field->getData()->name == wanted ? 1 : 0;
    benchmark::DoNotOptimize(found);
}

BENCHMARK(broadcast);
BENCHMARK(thousandExpressions);
BENCHMARK(thousandScans);

} // namespace

int main(int argc, char *argv[])
{
    return runGuiBenchmarks(argc, argv);
}
