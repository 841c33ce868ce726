// What the filter of a message tree costs, beside a tree without one.

#include "decodedmessage.h"
#include "descriptions.h"
#include "enumeration.h"
#include "fieldtype.h"
#include "formatinfo.h"
#include "guibenchmarks.h"
#include "messageinfo.h"
#include "messagetreefilter.h"
#include "messagetreewidget.h"
#include "messagetreewidgetitem.h"

#include <QApplication>
#include <QSignalBlocker>

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace {

/** The whole, or an element: of two fields that have symbols, and one that counts up. */
class ElementMessage : public corvane::DecodedMessage
{
public:
    ElementMessage(const MessageInfo *info, int index)
        : DecodedMessage(info, unknownTime, 0)
        , index(index)
    {
    }

    const int index;
};

class ElementField : public FieldInfo
{
public:
    using ValueOf = std::function<qint64(int index)>;

    ElementField(std::unique_ptr<corvane::FieldInfoData> data, ValueOf valueOf)
        : FieldInfo(FieldType(FieldType::SignedInteger, 32), std::move(data))
        , valueOf(std::move(valueOf))
    {
    }

    unsigned int getNumberOfValues(const Message *) const override { return 1; }

    FieldValue getValue(const Message *message, unsigned int) const override
    {
        return FieldValue::fromSigned(valueOf(static_cast<const ElementMessage *>(message)->index),
                                      32);
    }

private:
    ValueOf valueOf;
};

using Elements = std::vector<std::unique_ptr<ElementMessage>>;

class ElementsField : public FieldInfo
{
public:
    ElementsField(std::unique_ptr<corvane::FieldInfoData> data,
                  const MessageInfo *type,
                  const Elements *elements)
        : FieldInfo(FieldType(type), std::move(data))
        , elements(elements)
    {
    }

    unsigned int getNumberOfValues(const Message *) const override
    {
        return static_cast<unsigned int>(elements->size());
    }

    FieldValue getValue(const Message *, unsigned int index) const override
    {
        return FieldValue::fromSubMessage(elements->at(index).get());
    }

private:
    const Elements *elements; ///< Not owned.
};

/** A shown tree with one message of many elements; a tenth is "RARE", a half is "ODD". */
class ElementTree
{
public:
    ElementTree(qint64 count, bool expanded)
    {
        auto data = std::make_unique<corvane::FormatInfoData>();
        data->name = "Elements";
        format = std::make_unique<FormatInfo>(std::move(data));
        MessageInfo *elementType = addType("Element", false);
        addElementField(elementType, "value", {}, [this](int index) { return index + round; });
        addElementField(elementType, "frequency", {"USUAL", "RARE"},
                        [](int index) { return index % 10 == 0 ? 1 : 0; });
        addElementField(elementType, "parity", {"EVEN", "ODD"},
                        [](int index) { return index % 2; });
        for (int i = 0; i < static_cast<int>(count); ++i)
            elements.push_back(std::make_unique<ElementMessage>(elementType, i));
        auto fieldData = std::make_unique<corvane::FieldInfoData>();
        fieldData->name = "elements";
        fieldData->repeated = true;
        MessageInfo *type = addType("Whole", true);
        type->getData()->addField(
            std::make_unique<ElementsField>(std::move(fieldData), elementType, &elements), type);
        message = new ElementMessage(type, 0);

        auto *row = new MessageTreeWidgetItem(&tree, type);
        tree.addTopLevelItem(row);
        row->configureInTreeWidget();
        row->setExpanded(true);
        row->child(0)->setExpanded(true);
        MessageTreeWidget::sMessageInfoExpandedCollapsedMap[elementType] = expanded;
        tree.resize(600, 800);
        tree.show();
        tree.processMessage(message);
        row->setFilter(&filter);
        QApplication::processEvents();
    }

    ~ElementTree()
    {
        message->removeReference();
        MessageTreeWidget::sMessageInfoExpandedCollapsedMap.clear();
        MessageTreeWidget::sFieldInfoExpandedCollapsedMap.clear();
    }

    ElementTree(const ElementTree &) = delete;
    ElementTree &operator=(const ElementTree &) = delete;

    void update()
    {
        ++round;
        tree.processMessage(message);
    }

    /** What the filter itself costs in an update. */
    void compare()
    {
        bool found = false;
        for (const auto &element : elements)
            found = filter.isInFilter(element.get()) || found;
        benchmark::DoNotOptimize(found);
    }

    /** Does now what is to be laid out before the next painting. */
    void finishLayout() { tree.visualItemRect(tree.topLevelItem(0)); }

private:
    MessageInfo *addType(const QString &name, bool isMain)
    {
        auto data = std::make_unique<corvane::MessageInfoData>();
        data->name = name;
        data->format = format.get();
        data->main = isMain;
        return format->getData()->addMessage(std::make_unique<MessageInfo>(std::move(data)));
    }

    static void addElementField(MessageInfo *type,
                                const QString &name,
                                const QStringList &symbols,
                                ElementField::ValueOf valueOf)
    {
        auto data = std::make_unique<corvane::FieldInfoData>();
        data->name = name;
        if (!symbols.isEmpty()) {
            auto enumeration = std::make_shared<corvane::Enumeration>(name);
            for (int i = 0; i < symbols.size(); ++i)
                enumeration->add({static_cast<quint64>(i), symbols.at(i), {}});
            data->symbols = enumeration;
        }
        type->getData()->addField(
            std::make_unique<ElementField>(std::move(data), std::move(valueOf)), type);
    }

    std::unique_ptr<FormatInfo> format;
    Elements elements;
    const Message *message; ///< With one reference.
    int round = 0;

public:
    MessageTreeFilter filter;
    MessageTreeWidget tree; ///< Goes before what its rows show.
};

// Building them takes longer than what is measured.
std::map<std::pair<qint64, bool>, std::unique_ptr<ElementTree>> elementTrees;

/** The tree of as many elements, expanded or not, as \a state has for arguments. */
ElementTree &elementTree(const benchmark::State &state)
{
    auto &tree = elementTrees[{state.range(0), state.range(1) != 0}];
    if (tree == nullptr)
        tree = std::make_unique<ElementTree>(state.range(0), state.range(1) != 0);
    return *tree;
}

/** A message whose elements keep their places; "USUAL" hides a tenth of them. */
void updateElements(benchmark::State &state, const QString &search)
{
    ElementTree &elements = elementTree(state);
    elements.filter.setSearchString(search);
    elements.finishLayout();
    for (auto _ : state)
        elements.update();
}

/** The comparisons of updateElements() alone. */
void compareElements(benchmark::State &state, const QString &search)
{
    ElementTree &elements = elementTree(state);
    elements.filter.setSearchString(search);
    for (auto _ : state)
        elements.compare();
}

using TextSetter = std::function<void(ElementTree &elements, const QString &text)>;

/** Two texts in turn, each by \a setText. */
void alternate(benchmark::State &state,
               const QString &first,
               const QString &second,
               const TextSetter &setText)
{
    ElementTree &elements = elementTree(state);
    elements.filter.setSearchString(first);
    elements.finishLayout();
    bool isFirst = true;
    for (auto _ : state) {
        isFirst = !isFirst;
        setText(elements, isFirst ? first : second);
    }
    elements.filter.setSearchString(first);
}

/** Up to the finished layout. */
void changeFilter(benchmark::State &state, const QString &first, const QString &second)
{
    alternate(state, first, second, [](ElementTree &elements, const QString &text) {
        elements.filter.setSearchString(text);
        elements.finishLayout();
    });
}

/** What changeFilter() takes at the least. */
void compareAndLayOut(benchmark::State &state, const QString &first, const QString &second)
{
    alternate(state, first, second, [](ElementTree &elements, const QString &text) {
        const QSignalBlocker blocker(elements.filter);
        elements.filter.setSearchString(text);
        elements.compare();
        elements.tree.doItemsLayout();
    });
}

BENCHMARK_CAPTURE(updateElements, unfiltered, QString())->ArgsProduct({{10'000}, {0, 1}});
BENCHMARK_CAPTURE(updateElements, filtered, QString("USUAL"))->ArgsProduct({{10'000}, {0, 1}});
BENCHMARK_CAPTURE(compareElements, filtered, QString("USUAL"))->ArgsProduct({{10'000}, {0, 1}});
BENCHMARK_CAPTURE(changeFilter, aTenth, QString("USUAL"), QString())
    ->ArgsProduct({{100'000}, {0, 1}});
BENCHMARK_CAPTURE(compareAndLayOut, aTenth, QString("USUAL"), QString())
    ->ArgsProduct({{100'000}, {0, 1}});
BENCHMARK_CAPTURE(changeFilter, all, QString("EVEN"), QString("ODD"))
    ->ArgsProduct({{100'000}, {0, 1}});
BENCHMARK_CAPTURE(compareAndLayOut, all, QString("EVEN"), QString("ODD"))
    ->ArgsProduct({{100'000}, {0, 1}});

} // namespace

int main(int argc, char *argv[])
{
    return runGuiBenchmarks(argc, argv, [] { elementTrees.clear(); });
}
