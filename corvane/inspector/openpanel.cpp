#include "openpanel.h"

#include "emptyhint.h"
#include "hostfeed.h"
#include "noticearea.h"
#include "options.h"

#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QSerialPortInfo>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>
#include <utility>

namespace corvane {

namespace {

struct KindText
{
    const char *title;
    const char *prefix;
    const char *example;
};

// In the order of SourceAddress::Kind, without standard input.
constexpr std::array kindTexts{
    KindText{QT_TRANSLATE_NOOP("corvane::OpenPanel", "File or recording"), "", "/path/to/file"},
    KindText{QT_TRANSLATE_NOOP("corvane::OpenPanel", "Network: connect (TCP)"), "tcp://",
             "host:5760"},
    KindText{QT_TRANSLATE_NOOP("corvane::OpenPanel", "Network: wait for a connection (TCP)"),
             "tcp-listen://", ":5760"},
    KindText{QT_TRANSLATE_NOOP("corvane::OpenPanel", "Network: datagrams (UDP)"), "udp://",
             ":14550"},
    KindText{QT_TRANSLATE_NOOP("corvane::OpenPanel", "Serial port"),
             "serial:", "/dev/ttyUSB0?baud=57600"},
    KindText{QT_TRANSLATE_NOOP("corvane::OpenPanel", "Output of a program"), "exec:", "command"},
};
constexpr int fileKind = 0;
constexpr int serialKind = 4;

bool hasSuffix(const QString &file, std::initializer_list<const char *> suffixes)
{
    const QString suffix = QFileInfo(file).suffix().toLower();
    return std::any_of(suffixes.begin(), suffixes.end(),
                       [&](const char *known) { return suffix == QLatin1String(known); });
}

/** A list that says what would fill it. */
class HintedList final : public QListWidget
{
public:
    HintedList(const QString &hint, QWidget *parent)
        : QListWidget(parent)
        , hint(hint)
    {
        setAccessibleDescription(hint);
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QListWidget::paintEvent(event);
        if (count() == 0)
            paintEmptyHint(*this, hint);
    }

private:
    QString hint;
};

} // namespace

FileList::FileList(const QString &name, const QString &hint, QString filter, QWidget *parent)
    : QWidget(parent)
    , filter(std::move(filter))
    , list(new HintedList(hint, this))
    , addButton(new QToolButton(this))
{
    list->setAccessibleName(name);
    list->setMaximumHeight(fontMetrics().height() * 5);
    list->setTextElideMode(Qt::ElideMiddle);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    addButton->setText(tr("Add…"));
    addButton->setAccessibleName(tr("Add to: %1").arg(name));
    auto *remove = new QToolButton(this);
    remove->setText(tr("Remove"));
    remove->setAccessibleName(tr("Remove from: %1").arg(name));
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(list, 0, 0, 3, 1);
    layout->addWidget(addButton, 0, 1);
    layout->addWidget(remove, 1, 1);
    layout->setRowStretch(2, 1);
    connect(addButton, &QToolButton::clicked, this, &FileList::choose);
    connect(remove, &QToolButton::clicked, this, &FileList::removeChosen);
}

QStringList FileList::getFiles() const
{
    QStringList files;
    for (int row = 0; row < list->count(); ++row)
        files += list->item(row)->text();
    return files;
}

void FileList::setFiles(const QStringList &files)
{
    list->clear();
    addFiles(files);
}

void FileList::addFiles(const QStringList &files)
{
    const QStringList known = getFiles();
    for (const QString &file : files)
        if (!known.contains(file))
            list->addItem(file);
    Q_EMIT changed();
}

void FileList::focusAddButton()
{
    addButton->setFocus();
}

void FileList::choose()
{
    addFiles(QFileDialog::getOpenFileNames(this, list->accessibleName(), QString(), filter));
}

void FileList::removeChosen()
{
    qDeleteAll(list->selectedItems());
    Q_EMIT changed();
}

OpenPanel::OpenPanel(QSettings &settings, QWidget *parent)
    : QWidget(parent)
    , recent(settings)
    , notices(new NoticeArea(this))
{
    setWindowTitle(tr("Open a Source"));
    setAcceptDrops(true);
    auto *layout = new QVBoxLayout(this);
    auto *halves = new QHBoxLayout;
    halves->addWidget(createRecentList(), 2);
    halves->addWidget(createForm(), 3);
    layout->addWidget(notices);
    layout->addLayout(halves, 1);
    takeKind();
    refreshRecent();
    resize(fontMetrics().averageCharWidth() * 150, fontMetrics().height() * 30);
}

QWidget *OpenPanel::createRecentList()
{
    auto *side = new QWidget(this);
    auto *title = new QLabel(tr("&Recent sources"), side);
    recentList = new HintedList(tr("Nothing yet: what you open is listed here."), side);
    recentList->setAccessibleName(tr("Recent sources"));
    recentList->setTextElideMode(Qt::ElideMiddle);
    recentList->setAlternatingRowColors(true);
    title->setBuddy(recentList);
    auto *feed = new QPushButton(tr("This &machine's own feed"), side);
    feed->setToolTip(tr("Load, memory, network, disks and processes of this machine, live"));
    feed->setEnabled(findHostFeed().has_value());
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins({});
    layout->addWidget(title);
    layout->addWidget(recentList, 1);
    layout->addWidget(feed);
    connect(recentList, &QListWidget::currentRowChanged, this, &OpenPanel::takeRecent);
    connect(recentList, &QListWidget::itemActivated, this, &OpenPanel::open);
    connect(feed, &QPushButton::clicked, this, &OpenPanel::openHostFeed);
    return side;
}

QWidget *OpenPanel::createForm()
{
    auto *form = new QWidget(this);
    kind = new QComboBox(form);
    kind->setAccessibleName(tr("Kind of source"));
    for (const KindText &text : kindTexts)
        kind->addItem(tr(text.title));
    address = new QLineEdit(form);
    address->setAccessibleName(tr("Address of the source"));
    browse = new QToolButton(form);
    definitions
        = new FileList(tr("Definitions"),
                       tr("Files that describe the messages: MAVLink dialects, .proto files "
                          "or descriptor sets"),
                       tr("Definitions (*.xml *.proto *.desc *.pb);;All files (*)"), form);
    overlays = new FileList(tr("Overlays"),
                            tr("Files that add roles, units or computed fields to the definitions"),
                            tr("Overlays (*.json);;All files (*)"), form);
    framing = new QComboBox(form);
    framing->setAccessibleName(tr("Framing"));
    framing->addItem(tr("By itself"), QString());
    for (const char *name : {"raw", "tlog", "varint", "le32"})
        framing->addItem(QLatin1String(name), QLatin1String(name));
    root = new QLineEdit(form);
    root->setAccessibleName(tr("Root message type"));
    root->setPlaceholderText(tr("Protocol Buffers only: package.Type"));
    notice = new QLabel(form);
    notice->setTextFormat(Qt::PlainText);
    notice->setWordWrap(true);

    auto *layout = new QGridLayout(form);
    layout->setContentsMargins({});
    int row = 0;
    const auto addRow = [&](const QString &title, QWidget *widget, int columns = 2) {
        auto *label = new QLabel(title, form);
        label->setBuddy(widget);
        const bool isLine = qobject_cast<FileList *>(widget) == nullptr;
        layout->addWidget(label, row, 0, isLine ? Qt::AlignVCenter : Qt::AlignTop);
        layout->addWidget(widget, row++, 1, 1, columns);
    };
    addRow(tr("&Source"), kind);
    addRow(tr("&Address"), address, 1);
    layout->addWidget(browse, row - 1, 2);
    addRow(tr("&Definitions"), definitions);
    addRow(tr("Overla&ys"), overlays);
    addRow(tr("Frami&ng"), framing);
    addRow(tr("Root ty&pe"), root);
    layout->addWidget(notice, row++, 0, 1, 3);
    layout->setRowStretch(row++, 1);
    createButtons(*layout, row);
    connect(kind, &QComboBox::currentIndexChanged, this, &OpenPanel::takeKind);
    connect(browse, &QToolButton::clicked, this, &OpenPanel::chooseFile);
    connect(address, &QLineEdit::returnPressed, this, &OpenPanel::open);
    return form;
}

void OpenPanel::createButtons(QGridLayout &layout, int row)
{
    openButton = new QPushButton(tr("&Open"), this);
    openButton->setDefault(true);
    openButton->setAutoDefault(true);
    layout.addWidget(openButton, row, 1, 1, 2, Qt::AlignRight);
    connect(openButton, &QPushButton::clicked, this, &OpenPanel::open);
}

void OpenPanel::takeKind()
{
    const int index = kind->currentIndex();
    address->setPlaceholderText(QLatin1String(kindTexts.at(static_cast<size_t>(index)).example));
    browse->setVisible(index == fileKind || index == serialKind);
    browse->setText(index == fileKind ? tr("Browse…") : tr("Ports"));
    browse->setAccessibleName(index == fileKind ? tr("Choose the file") : tr("Choose the port"));
    delete browse->menu();
    browse->setMenu(nullptr);
    if (index == serialKind)
        fillPorts();
}

void OpenPanel::fillPorts()
{
    auto *menu = new QMenu(browse);
    browse->setMenu(menu);
    browse->setPopupMode(QToolButton::InstantPopup);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        menu->clear();
        const auto ports = QSerialPortInfo::availablePorts();
        for (const QSerialPortInfo &port : ports)
            menu->addAction(QStringLiteral("%1  %2").arg(port.portName(), port.description()), this,
                            [this, port] { address->setText(port.systemLocation()); });
        if (ports.isEmpty())
            menu->addAction(tr("This machine has no serial port"))->setEnabled(false);
    });
}

void OpenPanel::chooseFile()
{
    if (kind->currentIndex() != fileKind)
        return;
    const QString file = QFileDialog::getOpenFileName(this, tr("Open"), address->text());
    if (!file.isEmpty())
        addFiles({file});
}

void OpenPanel::takeRecent()
{
    const auto choices = recent.get();
    const int row = recentList->currentRow();
    if (row >= 0 && row < choices.size())
        setChoice(choices.at(row));
}

void OpenPanel::refreshRecent()
{
    recentList->clear();
    const auto choices = recent.get();
    for (const SourceChoice &choice : choices) {
        auto *item = new QListWidgetItem(choice.source, recentList);
        item->setToolTip(QStringList(choice.definitions + choice.overlays).join(QLatin1Char('\n')));
    }
}

SourceChoice OpenPanel::getChoice() const
{
    const QString text = address->text().trimmed();
    const auto index = static_cast<size_t>(kind->currentIndex());
    return {text.isEmpty() ? QString() : QLatin1String(kindTexts.at(index).prefix) + text,
            definitions->getFiles(), overlays->getFiles(), framing->currentData().toString(),
            root->text().trimmed()};
}

void OpenPanel::setChoice(const SourceChoice &choice)
{
    int index = fileKind;
    for (int i = fileKind + 1; i < static_cast<int>(kindTexts.size()); ++i)
        if (choice.source.startsWith(QLatin1String(kindTexts.at(static_cast<size_t>(i)).prefix)))
            index = i;
    kind->setCurrentIndex(index);
    const QLatin1String prefix(kindTexts.at(static_cast<size_t>(index)).prefix);
    address->setText(choice.source.mid(prefix.size()));
    definitions->setFiles(choice.definitions);
    overlays->setFiles(choice.overlays);
    framing->setCurrentIndex(qMax(0, framing->findData(choice.framing)));
    root->setText(choice.root);
    say({});
}

void OpenPanel::addFiles(const QStringList &files)
{
    for (const QString &file : files) {
        if (hasSuffix(file, {"xml", "proto", "desc", "pb"})) {
            definitions->addFiles({file});
        } else if (hasSuffix(file, {"json"})) {
            overlays->addFiles({file});
        } else {
            kind->setCurrentIndex(fileKind);
            address->setText(file);
        }
    }
    say({});
}

void OpenPanel::say(const QString &text)
{
    notice->setText(text);
    confirmedProgram.clear();
}

QString OpenPanel::missing(const SourceChoice &choice) const
{
    if (choice.source.isEmpty())
        return tr("Name the source: %1.").arg(kind->currentText());
    const SourceAddressResult source = SourceAddress::parse(choice.source);
    if (!source.address)
        return source.error;
    if (choice.definitions.isEmpty() && !bringsDefinitions(*source.address))
        return tr("The messages of %1 cannot be read without their definitions. Add the files "
                  "that describe them: for MAVLink a dialect (.xml), such as common.xml, with the "
                  "files that it includes beside it; for Protocol Buffers the .proto files, or a "
                  "descriptor set (.desc, .pb), and the root type.")
            .arg(choice.source);
    return {};
}

void OpenPanel::open()
{
    const SourceChoice choice = getChoice();
    if (const QString problem = missing(choice); !problem.isEmpty()) {
        say(problem);
        if (!choice.source.isEmpty() && choice.definitions.isEmpty())
            definitions->focusAddButton();
        return;
    }
    if (choice.isProgram() && confirmedProgram != choice.source) {
        say(tr("This starts a program on this machine: %1\nPress Open again to start it.")
                .arg(choice.source.mid(static_cast<qsizetype>(qstrlen("exec:")))));
        confirmedProgram = choice.source;
        return;
    }
    say({});
    Q_EMIT chosen(choice);
}

void OpenPanel::openHostFeed()
{
    if (const auto feed = findHostFeed()) {
        setChoice(*feed);
        Q_EMIT chosen(*feed); // our own program, and people have just asked for it
    }
}

void OpenPanel::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void OpenPanel::dropEvent(QDropEvent *event)
{
    addFiles(localFilesOf(*event->mimeData()));
    event->acceptProposedAction();
}

} // namespace corvane
