// Every widget of the library, one page each, with live data and the main settings.
//
//     example-gallery FOLDER [--pictures FOLDER]
//
// The first folder is examples/recording. With --pictures, plays the recording once as fast as it
// goes, writes a picture of every page and ends.

#include "pages.h"
#include "recordingplayer.h"

#include <QApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QListWidget>
#include <QStackedWidget>
#include <QTimer>

#include <memory>

namespace {

constexpr int pictureDelayMs = 2000;

/** The list of pages beside the chosen one. */
QWidget *createWindow(const LiveData &data, QListWidget *list)
{
    auto *window = new QWidget;
    auto *stack = new QStackedWidget;
    for (const Page &page : pages) {
        list->addItem(page.name);
        stack->addWidget(page.create(data));
    }
    QObject::connect(list, &QListWidget::currentRowChanged, stack,
                     &QStackedWidget::setCurrentIndex);
    list->setCurrentRow(0);
    list->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    list->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Expanding);

    auto *layout = new QHBoxLayout(window);
    layout->addWidget(list);
    layout->addWidget(stack, 1);
    window->resize(960, 560);
    return window;
}

bool writePictures(QWidget *window, QListWidget *list, const QString &folder)
{
    for (int i = 0; i < list->count(); ++i) {
        list->setCurrentRow(i);
        if (!window->grab().save(QDir(folder).filePath(QStringLiteral("page%1.png").arg(i + 1))))
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const QDir folder(arguments.value(1));

    RecordingPlayer player;
    const QString problem = player.load(folder.filePath(QStringLiteral("rover.xml")),
                                        folder.filePath(QStringLiteral("rover.overlay.json")));
    if (!problem.isEmpty()) {
        qWarning("%s", qPrintable(problem));
        return 1;
    }
    corvane::Reception *reception = player.getReception();
    auto *list = new QListWidget;
    const std::unique_ptr<QWidget> window(
        createWindow({reception, reception->getStatistics(), reception->getEventLog()}, list));
    window->show();

    if (arguments.value(2) == QStringLiteral("--pictures")) {
        player.setAsFastAsPossible();
        QTimer::singleShot(pictureDelayMs, window.get(), [&] {
            QCoreApplication::exit(writePictures(window.get(), list, arguments.value(3)) ? 0 : 1);
        });
    }
    player.play(folder.filePath(QStringLiteral("rover.tlog")));
    return QApplication::exec();
}
