// Shows one field of a stream, live:
//
//     example-one-value common.xml MAVLink.ATTITUDE.roll udp://:14550

#include <QApplication>

#include <bytesource.h>
#include <fieldvaluelabel.h>
#include <mavlinkformat.h>
#include <pathexpression.h>
#include <reception.h>
#include <sourceaddress.h>
#include <streamdecoder.h>
#include <streampump.h>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = application.arguments();

    // [one value]
    corvane::MavlinkFormat format;
    const auto loaded = format.load(arguments.value(1));
    const auto address = corvane::SourceAddress::parse(arguments.value(3));
    if (!loaded.isOk() || !address.address) {
        qWarning("%s", qPrintable(loaded.isOk() ? address.error : loaded.errors[0].toString()));
        return 1;
    }

    corvane::Reception reception(format);
    const auto source = corvane::createSource(*address.address);
    const auto decoder = format.makeDecoder(reception, "auto");
    corvane::StreamPump pump(*source, *decoder);
    pump.start(); // from now on reception.newMessage() comes, out of the event loop

    PathExpression path;
    path.setString(arguments.value(2));
    FieldValueLabel label(path.getMatchingFieldInfos().value(0), &reception);
    label.setTimeOut(2000); // "N/A" when nothing came for two seconds
    label.show();
    // [one value]
    return QApplication::exec();
}
