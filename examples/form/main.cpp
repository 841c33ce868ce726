// A form of one message type, fed by a message source: the widgets in twenty lines.
//
// Message types and sources come from the framework that is linked. This program has no stream, so
// it shows the form without a type; a host passes its own MessageInfo and MessageSource.

#include <QApplication>
#include <QTimer>

#include <fieldvaluelabel.h>
#include <messagesource.h>
#include <messagewidget.h>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);

    MessageSource source;
    const MessageInfo *type = nullptr; // the type to show, from the framework's catalogue
    MessageWidget form(nullptr, type);
    QObject::connect(&source, SIGNAL(newMessage(const Message *)), &form,
                     SLOT(processMessage(const Message *)));
    form.show();

    const FieldInfo *field = nullptr; // one of type->getFieldInfos()
    FieldValueLabel label(field, &source);
    label.setTimeOut(2000); // "N/A" when nothing came for two seconds
    label.show();

    if (application.arguments().contains(QStringLiteral("--quit")))
        QTimer::singleShot(0, &application, &QCoreApplication::quit);
    return QApplication::exec();
}
