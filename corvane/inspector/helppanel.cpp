#include "helppanel.h"

#include <QAction>
#include <QCoreApplication>
#include <QMap>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <google/protobuf/stubs/common.h>

#include <array>

namespace corvane {

namespace {

struct Hint
{
    const char *title;
    const char *text;
};

constexpr std::array hints{
    Hint{QT_TRANSLATE_NOOP("corvane::HelpPanel", "Open a source"),
         QT_TRANSLATE_NOOP("corvane::HelpPanel",
                           "A recording, a network address, a serial port or a program, together "
                           "with the files that describe its messages. Files can be dropped onto "
                           "the window.")},
    Hint{QT_TRANSLATE_NOOP("corvane::HelpPanel", "Look at messages"),
         QT_TRANSLATE_NOOP("corvane::HelpPanel",
                           "The tree in the middle shows the last message of each type. A row that "
                           "is chosen there, or in the list of types, fills the form. Choose what "
                           "the tree shows in the menu Tree.")},
    Hint{QT_TRANSLATE_NOOP("corvane::HelpPanel", "Watch some fields"),
         QT_TRANSLATE_NOOP("corvane::HelpPanel",
                           "Watch and Plot take paths of fields, FORMAT.MESSAGE.FIELD; * stands "
                           "for any text.")},
    Hint{QT_TRANSLATE_NOOP("corvane::HelpPanel", "See what is lost"),
         QT_TRANSLATE_NOOP("corvane::HelpPanel",
                           "Statistics, senders and event log tell of rates, gaps, losses and "
                           "damage of every message, shown or not, also while the views are "
                           "paused.")},
    Hint{QT_TRANSLATE_NOOP("corvane::HelpPanel", "Keep it"),
         QT_TRANSLATE_NOOP("corvane::HelpPanel",
                           "Record writes the bytes of the source as they come. Export writes "
                           "messages or some of their fields as text for other programs.")},
};

QString plain(QString text)
{
    text.remove(QLatin1Char('&'));
    text.remove(QStringLiteral("…"));
    return text;
}

/** The keys of each action, by its text. */
QMap<QString, QString> shortcutsOf(const QWidget &window)
{
    QMap<QString, QString> keys;
    for (const QAction *action : window.findChildren<QAction *>()) {
        QStringList texts;
        for (const QKeySequence &key : action->shortcuts())
            texts += key.toString(QKeySequence::NativeText);
        if (!texts.isEmpty() && !action->text().isEmpty())
            keys.insert(plain(action->text()), texts.join(QStringLiteral(", ")));
    }
    return keys;
}

} // namespace

HelpPanel::HelpPanel(QWidget *parent)
    : QWidget(parent)
    , page(new QTextBrowser(this))
{
    page->setAccessibleName(tr("Help"));
    setFocusProxy(page);
    page->setMinimumHeight(fontMetrics().height() * 3);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(page);
}

void HelpPanel::describe(const QWidget &window)
{
    QString html;
    for (const Hint &hint : hints)
        html += QStringLiteral("<p><b>%1.</b> %2</p>")
                    .arg(tr(hint.title).toHtmlEscaped(), tr(hint.text).toHtmlEscaped());
    html += QStringLiteral("<p><b>%1</b></p><table cellspacing=\"4\">")
                .arg(tr("Keys").toHtmlEscaped());
    const auto keys = shortcutsOf(window);
    for (auto key = keys.begin(); key != keys.end(); ++key)
        html += QStringLiteral("<tr><td>%1</td><td>%2</td></tr>")
                    .arg(key.value().toHtmlEscaped(), key.key().toHtmlEscaped());
    page->setHtml(html + QStringLiteral("</table>"));
}

QString HelpPanel::getText() const
{
    return page->toPlainText();
}

QString getVersionsText()
{
    const int protobuf = GOOGLE_PROTOBUF_VERSION;
    return HelpPanel::tr("Corvane Inspector %1\nFramework %1\nQt %2\nProtocol Buffers %3")
        .arg(QCoreApplication::applicationVersion(), QString::fromLatin1(qVersion()),
             QString::fromStdString(google::protobuf::internal::VersionString(protobuf)));
}

} // namespace corvane
