#include "exportdialog.h"

#include "descriptions.h"
#include "fieldinfo.h"
#include "formatinfo.h"
#include "messageinfo.h"
#include "messagestatistics.h"
#include "messagestatisticscoordinator.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHash>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>

#include <algorithm>

namespace corvane {

namespace {

constexpr int nameColumn = 0;
constexpr int countColumn = 1;
constexpr int infoRole = Qt::UserRole;

template <typename Info>
const Info *infoOf(const QTreeWidgetItem *item)
{
    return static_cast<const Info *>(item->data(nameColumn, infoRole).value<const void *>());
}

void setInfo(QTreeWidgetItem *item, const void *info)
{
    item->setData(nameColumn, infoRole, QVariant::fromValue(info));
}

/** The types that arrive by themselves: those that have been seen, then the others, by name. */
QList<const MessageInfo *> sortedTypes(const FormatInfo &format,
                                       const QHash<const MessageInfo *, quint32> &counts)
{
    QList<const MessageInfo *> types;
    for (const auto &type : format.getData()->messages)
        if (type->isMain())
            types.append(type.get());
    std::sort(types.begin(), types.end(), [&counts](const auto *left, const auto *right) {
        const bool leftSeen = counts.contains(left);
        if (leftSeen != counts.contains(right))
            return leftSeen;
        return left->getName().compare(right->getName(), Qt::CaseInsensitive) < 0;
    });
    return types;
}

QTreeWidgetItem *makeTypeItem(const MessageInfo *type, bool checked)
{
    auto *item = new QTreeWidgetItem({type->getName()});
    setInfo(item, type);
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
    item->setToolTip(nameColumn, type->getShortDescriptiveText());
    for (const FieldInfo *field : getExportedFields(type)) {
        auto *child = new QTreeWidgetItem(item, {field->getName()});
        setInfo(child, field);
        child->setFlags(child->flags() | Qt::ItemIsUserCheckable);
        child->setCheckState(nameColumn, checked ? Qt::Checked : Qt::Unchecked);
    }
    if (item->childCount() == 0)
        item->setCheckState(nameColumn, checked ? Qt::Checked : Qt::Unchecked);
    return item;
}

} // namespace

ExportDialog::ExportDialog(const FormatInfo &format,
                           const MessageStatisticsCoordinator &statistics,
                           const QString &hint,
                           QWidget *parent)
    : QDialog(parent)
    , searchEdit(new QLineEdit(this))
    , list(new QTreeWidget(this))
    , form(new QComboBox(this))
    , symbolic(new QCheckBox(tr("&Names in place of numbers, where values have names"), this))
    , file(new QLineEdit(this))
    , note(new QLabel(this))
{
    setWindowTitle(tr("Export Messages"));
    fillList(format, statistics);
    createLayout(hint);
    connect(searchEdit, &QLineEdit::textChanged, this, &ExportDialog::search);
    connect(list, &QTreeWidget::itemChanged, this, &ExportDialog::refresh);
    connect(form, &QComboBox::currentIndexChanged, this, &ExportDialog::adaptFileName);
    connect(file, &QLineEdit::textChanged, this, &ExportDialog::refresh);
    resize(fontMetrics().averageCharWidth() * 80, fontMetrics().height() * 32);
    adaptFileName();
}

void ExportDialog::fillList(const FormatInfo &format,
                            const MessageStatisticsCoordinator &statistics)
{
    QHash<const MessageInfo *, quint32> counts;
    for (const MessageStatistics *type : statistics.getAllMessageStatistics())
        if (type->getMessageInfo() != nullptr)
            counts.insert(type->getMessageInfo(), type->getCount());
    list->setAccessibleName(tr("Messages and fields"));
    list->setHeaderLabels({tr("Message or field"), tr("Received")});
    list->setUniformRowHeights(true);
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(nameColumn, QHeaderView::Stretch);
    QList<QTreeWidgetItem *> items;
    for (const MessageInfo *type : sortedTypes(format, counts)) {
        items.append(makeTypeItem(type, counts.isEmpty() || counts.contains(type)));
        if (counts.contains(type))
            items.last()->setText(countColumn, QLocale().toString(counts.value(type)));
        items.last()->setTextAlignment(countColumn, Qt::AlignRight | Qt::AlignVCenter);
    }
    list->addTopLevelItems(items);
}

void ExportDialog::createLayout(const QString &hint)
{
    form->addItem(tr("CSV: a table"), static_cast<int>(ExportFormat::Csv));
    form->addItem(tr("JSON lines: an object for each message"),
                  static_cast<int>(ExportFormat::JsonLines));
    symbolic->setChecked(true);
    searchEdit->setPlaceholderText(tr("Find messages and fields"));
    searchEdit->setAccessibleName(searchEdit->placeholderText());
    searchEdit->setClearButtonEnabled(true);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    auto *hintLabel = new QLabel(hint, this);
    hintLabel->setTextFormat(Qt::PlainText);
    hintLabel->setWordWrap(true);
    auto *fields = new QFormLayout;
    fields->addRow(tr("F&orm:"), form);
    fields->addRow(QString(), symbolic);
    auto *fileLabel = new QLabel(tr("&File:"), this);
    fileLabel->setBuddy(file);
    fields->addRow(fileLabel, createFileRow());
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    exportButton = buttons->addButton(tr("&Export"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(hintLabel);
    layout->addLayout(createListButtons());
    layout->addWidget(list, 1);
    layout->addLayout(fields);
    layout->addWidget(note);
    layout->addWidget(buttons);
}

QLayout *ExportDialog::createListButtons()
{
    auto *all = new QPushButton(tr("Choose &All"), this);
    auto *none = new QPushButton(tr("C&hoose None"), this);
    for (QPushButton *button : {all, none}) {
        button->setAutoDefault(false);
        button->setToolTip(tr("Of what the list shows"));
    }
    connect(all, &QPushButton::clicked, this, [this] { checkVisible(true); });
    connect(none, &QPushButton::clicked, this, [this] { checkVisible(false); });
    auto *row = new QHBoxLayout;
    row->addWidget(searchEdit, 1);
    row->addWidget(all);
    row->addWidget(none);
    return row;
}

QLayout *ExportDialog::createFileRow()
{
    auto *choose = new QPushButton(tr("&Choose..."), this);
    choose->setAutoDefault(false);
    connect(choose, &QPushButton::clicked, this, &ExportDialog::chooseFile);
    file->setAccessibleName(tr("File"));
    file->setText(QDir::home().filePath(QStringLiteral("messages.csv")));
    auto *row = new QHBoxLayout;
    row->addWidget(file, 1);
    row->addWidget(choose);
    return row;
}

void ExportDialog::search(const QString &text)
{
    const auto matches = [&text](const QTreeWidgetItem *item) {
        return item->text(nameColumn).contains(text, Qt::CaseInsensitive);
    };
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        QTreeWidgetItem *type = list->topLevelItem(i);
        const bool typeMatches = matches(type);
        bool anyMatches = typeMatches;
        for (int j = 0; j < type->childCount(); ++j) {
            const bool fieldMatches = matches(type->child(j));
            type->child(j)->setHidden(!typeMatches && !fieldMatches);
            anyMatches = anyMatches || fieldMatches;
        }
        type->setHidden(!anyMatches);
        type->setExpanded(!typeMatches && anyMatches);
    }
}

void ExportDialog::checkVisible(bool checked)
{
    {
        const QSignalBlocker blocker(list);
        const Qt::CheckState state = checked ? Qt::Checked : Qt::Unchecked;
        for (int i = 0; i < list->topLevelItemCount(); ++i) {
            QTreeWidgetItem *type = list->topLevelItem(i);
            if (type->isHidden())
                continue;
            for (int j = 0; j < type->childCount(); ++j)
                if (!type->child(j)->isHidden())
                    type->child(j)->setCheckState(nameColumn, state);
            if (type->childCount() == 0)
                type->setCheckState(nameColumn, state);
        }
    }
    list->viewport()->update();
    refresh();
}

void ExportDialog::chooseFile()
{
    const QString chosen
        = QFileDialog::getSaveFileName(this, tr("Export Messages"), file->text(),
                                       tr("CSV (*.csv);;JSON lines (*.jsonl);;All files (*)"));
    if (!chosen.isEmpty())
        file->setText(chosen);
}

/** Keeps the ending of the name in step with the form, where it is one of ours. */
void ExportDialog::adaptFileName()
{
    const bool isCsv = form->currentData().toInt() == static_cast<int>(ExportFormat::Csv);
    const QString other = isCsv ? QStringLiteral(".jsonl") : QStringLiteral(".csv");
    QString name = file->text();
    if (name.endsWith(other)) {
        name.chop(other.size());
        file->setText(name + (isCsv ? QStringLiteral(".csv") : QStringLiteral(".jsonl")));
    }
    refresh();
}

void ExportDialog::refresh()
{
    const QString path = file->text();
    const bool isFolder = QFileInfo(path).isDir();
    bool anyChecked = false;
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        anyChecked = anyChecked || list->topLevelItem(i)->checkState(nameColumn) != Qt::Unchecked;
    exportButton->setEnabled(anyChecked && !path.isEmpty() && !isFolder);
    if (!anyChecked)
        note->setText(tr("Choose messages or fields to export."));
    else if (path.isEmpty() || isFolder)
        note->setText(tr("Choose the file to write."));
    else if (QFileInfo::exists(path))
        note->setText(tr("The file exists and will be replaced."));
    else
        note->clear();
}

ExportOrder ExportDialog::getOrder() const
{
    ExportOrder order;
    order.format = static_cast<ExportFormat>(form->currentData().toInt());
    order.names = symbolic->isChecked() ? ValueNames::Symbolic : ValueNames::Raw;
    order.file = file->text();
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *type = list->topLevelItem(i);
        if (type->checkState(nameColumn) == Qt::Unchecked)
            continue;
        QList<const FieldInfo *> fields;
        for (int j = 0; j < type->childCount(); ++j)
            if (type->child(j)->checkState(nameColumn) == Qt::Checked)
                fields.append(infoOf<FieldInfo>(type->child(j)));
        order.selection.add(infoOf<MessageInfo>(type), fields);
    }
    return order;
}

} // namespace corvane
