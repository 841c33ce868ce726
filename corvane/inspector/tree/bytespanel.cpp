#include "bytespanel.h"

#include "corvane.h"
#include "decodedmessage.h"
#include "fieldinfo.h"
#include "hexview.h"
#include "messageinfo.h"
#include "messagesource.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace corvane {

BytesPanel::BytesPanel(MessageSource &messages, QWidget *parent)
    : QWidget(parent)
    , heading(new QLabel(this))
    , view(new HexView(this))
    , selection(new QLabel(this))
{
    view->setAccessibleName(tr("Bytes of the message"));
    view->setToolTip(tr("Arrow keys move, with Shift they select; Ctrl+C copies as hexadecimal; "
                        "Enter or a double click goes to the field of a byte"));
    heading->setTextFormat(Qt::PlainText);
    heading->setWordWrap(true);
    selection->setTextFormat(Qt::PlainText);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addWidget(view, 1);
    layout->addWidget(selection);
    connect(&messages, &MessageSource::newMessage, this, &BytesPanel::processMessage);
    connect(Corvane::getInstance(), &Corvane::confidentialInformationDisplayChanged, this,
            &BytesPanel::refresh);
    connect(view, &HexView::selectionChanged, this, &BytesPanel::refreshSelection);
    connect(view, &HexView::activated, this, &BytesPanel::activate);
    refresh();
}

BytesPanel::~BytesPanel()
{
    setMessage(nullptr);
}

void BytesPanel::setPlace(const std::optional<RowPlace> &newPlace, const Message *newMessage)
{
    place = newPlace;
    setMessage(newMessage);
    refresh();
}

void BytesPanel::setType(const MessageInfo *type, const Message *newMessage)
{
    if (!place || place->type != type)
        setPlace(RowPlace{type, {}}, newMessage);
}

void BytesPanel::processMessage(const Message *newMessage)
{
    if (!place || newMessage->getInfo() != place->type)
        return;
    setMessage(newMessage);
    refresh();
}

void BytesPanel::clear()
{
    setMessage(nullptr);
    refresh();
}

void BytesPanel::setMessage(const Message *newMessage)
{
    if (newMessage != nullptr)
        newMessage->addReference();
    if (message != nullptr)
        message->removeReference();
    message = newMessage;
}

void BytesPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

void BytesPanel::refresh()
{
    if (!isVisible())
        return;
    const auto *decoded = static_cast<const DecodedMessage *>(message);
    const auto open = decoded != nullptr ? findOpenBytes(*decoded) : std::vector<bool>();
    isMasked = std::find(open.begin(), open.end(), false) != open.end();
    view->setBytes(decoded != nullptr ? decoded->getBytes().toByteArray() : QByteArray(), open);
    view->setMarked(message != nullptr ? findByteRanges(*place, message)
                                       : std::vector<ByteRange>());
    heading->setText(getHeading());
}

QString BytesPanel::getHeading() const
{
    if (!place)
        return tr("Choose a message or a field in the tree to see its bytes.");
    const QString name = place->type->getName();
    if (message == nullptr)
        return tr("%1: no message of this type has come yet.").arg(name);
    const auto size = static_cast<const DecodedMessage *>(message)->getBytes().size();
    if (size == 0)
        return tr("%1: this message did not come as bytes.").arg(name);
    QStringList sentences{tr("%1: %2 bytes.").arg(name).arg(size)};
    sentences += getPlaceText();
    if (isMasked)
        sentences += tr("Masked (··): all that may be confidential.");
    sentences.removeAll(QString());
    return sentences.join(QLatin1Char(' '));
}

QString BytesPanel::getPlaceText() const
{
    const FieldInfo *field = place->getField();
    if (field == nullptr)
        return {};
    const auto &marked = view->getMarked();
    const QString name = field->getName();
    if (!marked.empty()) {
        const quint32 end = marked.back().offset + marked.back().length;
        return tr("%1: offset %2, length %3.")
            .arg(name)
            .arg(marked.front().offset)
            .arg(end - marked.front().offset);
    }
    if (field->isVirtual())
        return tr("%1 is computed and has no bytes of its own.").arg(name);
    if (!knowsByteRanges(message))
        return tr("Where fields lie in the bytes is not known in this format.");
    return tr("%1 has no bytes in this message.").arg(name);
}

void BytesPanel::refreshSelection()
{
    const ByteRange range = view->getSelection();
    const QString digits = QString::number(range.offset, 16).toUpper();
    QString text;
    if (range.length > 0)
        text = tr("Offset %1 (0x%2)").arg(QString::number(range.offset), digits);
    if (range.length > 1)
        text += tr(", %1 bytes").arg(range.length);
    const auto owner = message != nullptr ? findPlaceOfByte(message, range.offset) : std::nullopt;
    if (owner)
        text += tr(", in %1").arg(owner->getField()->getName());
    selection->setText(text);
    view->setAccessibleDescription(text + QStringLiteral(": ") + view->getSelectedText().left(200));
}

void BytesPanel::activate(int byte)
{
    const auto owner = findPlaceOfByte(message, static_cast<quint32>(byte));
    if (owner)
        Q_EMIT placeActivated(*owner);
}

} // namespace corvane
