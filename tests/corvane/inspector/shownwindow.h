#pragma once

#include "inspectortree.h"
#include "mainwindow.h"
#include "messagewidget.h"
#include "session.h"
#include "testcase.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTreeView>

#include <memory>

namespace corvane::test {

/** A window on the recording in the examples. */
class ShownWindow
{
public:
    explicit ShownWindow(std::optional<double> speed = std::nullopt,
                         const QStringList &overlays = {})
    {
        options.definitions = {sourceFile(QStringLiteral("examples/recording/rover.xml"))};
        options.source
            = SourceAddress::parse(sourceFile(QStringLiteral("examples/recording/rover.tlog")))
                  .address;
        options.overlays = overlays;
        options.speed = speed;
        session.load(options);
        window = std::make_unique<MainWindow>(session, settings);
        window->show();
        QSignalSpy finished(&session, &Session::finished);
        session.start(options);
        if (!speed)
            finished.wait();
    }

    QTreeView *types() const { return window->findChild<QTreeView *>(QStringLiteral("typeView")); }

    QModelIndex indexOf(const QString &name) const
    {
        const auto found = types()->model()->match(types()->model()->index(0, 0), Qt::DisplayRole,
                                                   name, 1, Qt::MatchExactly);
        return found.value(0);
    }

    void choose(const QString &name) const { types()->setCurrentIndex(indexOf(name)); }

    void chooseRow(const QString &name) const
    {
        auto *tree = window->findChild<InspectorTree *>();
        const auto find
            = [&] { return tree->findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0); };
        QTRY_VERIFY(find() != nullptr);
        tree->setCurrentItem(find());
    }

    /** The form as lines "name: value". */
    QStringList form() const
    {
        QStringList lines;
        const auto labels = window->findChild<MessageWidget *>()->findChildren<QLabel *>();
        for (qsizetype i = 0; i + 1 < labels.size(); i += 2)
            lines += labels.at(i)->text() + QStringLiteral(": ") + labels.at(i + 1)->text();
        return lines;
    }

    QAction *action(const QString &text) const
    {
        for (QAction *found : window->findChildren<QAction *>())
            if (found->text() == text)
                return found;
        return nullptr;
    }

    /** The visible button of that text, or null. */
    QPushButton *button(const QString &text) const
    {
        for (QPushButton *found : window->findChildren<QPushButton *>())
            if (found->text() == text && found->isVisible())
                return found;
        return nullptr;
    }

    bool says(const QString &text) const
    {
        for (const QLabel *label : window->findChildren<QLabel *>())
            if (label->text().contains(text))
                return true;
        return false;
    }

    Options options;
    Session session;
    QTemporaryDir folder;
    QSettings settings{folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat};
    std::unique_ptr<MainWindow> window;
};

} // namespace corvane::test
