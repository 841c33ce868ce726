#include "hexview.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace corvane {

namespace {

constexpr int groupSize = 4; // bytes without more room between them
constexpr int markAlpha = 90; // of 255

QString maskedDigits()
{
    return QStringLiteral("··");
}

} // namespace

HexView::HexView(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    viewport()->setCursor(Qt::IBeamCursor);
    viewport()->setBackgroundRole(QPalette::Base);
    layOut();
}

void HexView::setBytes(const QByteArray &newBytes, const std::vector<bool> &newOpen)
{
    const bool sizeChanged = newBytes.size() != bytes.size();
    bytes = newBytes;
    open = newOpen;
    if (sizeChanged) {
        const int last = std::max(static_cast<int>(bytes.size()) - 1, 0);
        cursor = std::min(cursor, last);
        anchor = std::min(anchor, last);
        layOut();
    }
    viewport()->update();
    Q_EMIT selectionChanged();
}

void HexView::setMarked(const std::vector<ByteRange> &newMarked)
{
    if (newMarked == marked)
        return;
    marked = newMarked;
    viewport()->update();
    if (marked.empty())
        return;
    scrollTo(static_cast<int>(marked.back().offset + marked.back().length) - 1);
    moveCursor(static_cast<int>(marked.front().offset), false);
}

// Columns, in characters: offset, two blanks, digits (each with a blank before, and one more
// before a group), three blanks, characters.

int HexView::getOffsetDigits() const
{
    return bytes.size() > 0xFFFF ? 8 : 4;
}

int HexView::getDigitsX(int column) const
{
    return characterWidth * (1 + getOffsetDigits() + 2 + column * 3 + column / groupSize);
}

int HexView::getCharacterX(int column) const
{
    return getDigitsX(bytesPerRow - 1) + characterWidth * (2 + 3 + column);
}

int HexView::getWidthFor(int columns) const
{
    return characterWidth
           * (1 + getOffsetDigits() + 2 + columns * 3 + (columns - 1) / groupSize + 2 + columns
              + 1);
}

QSize HexView::sizeHint() const
{
    constexpr int columns = 8;
    constexpr int rows = 12;
    const int frame = 2 * frameWidth();
    return {getWidthFor(columns) + verticalScrollBar()->sizeHint().width() + frame,
            rows * rowHeight + frame};
}

void HexView::layOut()
{
    characterWidth = std::max(fontMetrics().horizontalAdvance(QLatin1Char('0')), 1);
    rowHeight = std::max(fontMetrics().height(), 1);
    const int room = viewport()->width();
    for (bytesPerRow = 16; bytesPerRow > groupSize && getWidthFor(bytesPerRow) > room;)
        bytesPerRow /= 2;
    const int surplus = getRowCount() - getVisibleRowCount();
    verticalScrollBar()->setRange(0, std::max(surplus, 0));
    verticalScrollBar()->setPageStep(std::max(getVisibleRowCount(), 1));
    horizontalScrollBar()->setRange(0, std::max(getWidthFor(bytesPerRow) - room, 0));
    horizontalScrollBar()->setPageStep(room);
    horizontalScrollBar()->setSingleStep(characterWidth);
    viewport()->update();
}

int HexView::getRowCount() const
{
    return (static_cast<int>(bytes.size()) + bytesPerRow - 1) / bytesPerRow;
}

int HexView::getVisibleRowCount() const
{
    return viewport()->height() / rowHeight;
}

QString HexView::getDigits(int byte) const
{
    if (!open[static_cast<size_t>(byte)])
        return maskedDigits();
    return QString::fromLatin1(bytes.mid(byte, 1).toHex().toUpper());
}

QChar HexView::getCharacter(int byte) const
{
    const char character = bytes.at(byte);
    if (!open[static_cast<size_t>(byte)])
        return maskedDigits().at(0);
    return character >= ' ' && character <= '~' ? QLatin1Char(character) : QLatin1Char('.');
}

QString HexView::getRowText(int row) const
{
    const int first = row * bytesPerRow;
    const int end = std::min(first + bytesPerRow, static_cast<int>(bytes.size()));
    QStringList digits;
    QString characters;
    for (int byte = first; byte < end; ++byte) {
        digits += getDigits(byte);
        characters += getCharacter(byte);
    }
    const QString offset
        = QStringLiteral("%1").arg(first, getOffsetDigits(), 16, QLatin1Char('0')).toUpper();
    return QStringLiteral("%1  %2  %3").arg(offset, digits.join(QLatin1Char(' ')), characters);
}

ByteRange HexView::getSelection() const
{
    if (bytes.isEmpty())
        return {};
    const auto [first, last] = std::minmax(cursor, anchor);
    return {static_cast<quint32>(first), static_cast<quint32>(last - first + 1)};
}

QString HexView::getSelectedText() const
{
    const ByteRange selection = getSelection();
    QStringList digits;
    for (quint32 i = 0; i < selection.length; ++i)
        digits += getDigits(static_cast<int>(selection.offset + i));
    return digits.join(QLatin1Char(' '));
}

void HexView::copy() const
{
    if (!bytes.isEmpty())
        QGuiApplication::clipboard()->setText(getSelectedText());
}

void HexView::selectAll()
{
    anchor = 0;
    moveCursor(static_cast<int>(bytes.size()) - 1, true);
}

bool HexView::isMarked(int byte) const
{
    const auto place = static_cast<quint32>(byte);
    return std::any_of(marked.begin(), marked.end(), [place](const ByteRange &range) {
        return place >= range.offset && place - range.offset < range.length;
    });
}

void HexView::moveCursor(int byte, bool selecting)
{
    if (bytes.isEmpty())
        return;
    cursor = std::clamp(byte, 0, static_cast<int>(bytes.size()) - 1);
    if (!selecting)
        anchor = cursor;
    scrollTo(cursor);
    viewport()->update();
    Q_EMIT selectionChanged();
}

void HexView::scrollTo(int byte)
{
    const int row = byte / bytesPerRow;
    QScrollBar *bar = verticalScrollBar();
    bar->setValue(std::clamp(bar->value(), row - std::max(getVisibleRowCount() - 1, 0), row));
}

void HexView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        return copy();
    if (event->matches(QKeySequence::SelectAll))
        return selectAll();
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && !bytes.isEmpty())
        return Q_EMIT activated(cursor);
    const int moved = getMovedCursor(*event);
    if (moved == cursor && (event->key() < Qt::Key_Home || event->key() > Qt::Key_PageDown))
        return QAbstractScrollArea::keyPressEvent(event);
    moveCursor(moved, event->modifiers().testFlag(Qt::ShiftModifier));
}

/** Where \a event leads to; where the cursor is if it is about something else. */
int HexView::getMovedCursor(const QKeyEvent &event) const
{
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    const int last = static_cast<int>(bytes.size()) - 1;
    const int beginOfRow = cursor - cursor % bytesPerRow;
    const int page = std::max(getVisibleRowCount(), 1) * bytesPerRow;
    switch (event.key()) {
    case Qt::Key_Left:
        return cursor - 1;
    case Qt::Key_Right:
        return cursor + 1;
    case Qt::Key_Up:
        return cursor >= bytesPerRow ? cursor - bytesPerRow : cursor;
    case Qt::Key_Down:
        return cursor + bytesPerRow <= last ? cursor + bytesPerRow : cursor;
    case Qt::Key_PageUp:
        return cursor - page;
    case Qt::Key_PageDown:
        return cursor + page;
    case Qt::Key_Home:
        return control ? 0 : beginOfRow;
    case Qt::Key_End:
        return control ? last : beginOfRow + bytesPerRow - 1;
    default:
        return cursor;
    }
}

int HexView::getByteAt(const QPoint &position) const
{
    const int x = position.x() + horizontalScrollBar()->value();
    const int row = std::max(position.y(), 0) / rowHeight + verticalScrollBar()->value();
    int column = 0;
    if (x >= getCharacterX(0) - characterWidth)
        column = std::clamp((x - getCharacterX(0)) / characterWidth, 0, bytesPerRow - 1);
    else
        while (column + 1 < bytesPerRow && x >= getDigitsX(column + 1) - characterWidth / 2)
            ++column;
    return row * bytesPerRow + column;
}

void HexView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        moveCursor(getByteAt(event->position().toPoint()),
                   event->modifiers().testFlag(Qt::ShiftModifier));
}

void HexView::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons().testFlag(Qt::LeftButton))
        moveCursor(getByteAt(event->position().toPoint()), true);
}

void HexView::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept(); // the first click has moved the cursor
    if (event->button() == Qt::LeftButton && !bytes.isEmpty())
        Q_EMIT activated(cursor);
}

void HexView::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
}

void HexView::resizeEvent(QResizeEvent *)
{
    layOut();
}

void HexView::focusInEvent(QFocusEvent *)
{
    viewport()->update();
}

void HexView::focusOutEvent(QFocusEvent *)
{
    viewport()->update();
}

void HexView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        layOut();
    QAbstractScrollArea::changeEvent(event);
}

void HexView::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.translate(-horizontalScrollBar()->value(), 0);
    const int first = verticalScrollBar()->value();
    const int end = std::min(first + getVisibleRowCount() + 2, getRowCount());
    for (int row = first; row < end; ++row)
        paintRow(painter, row, (row - first) * rowHeight);
}

void HexView::paintRow(QPainter &painter, int row, int y) const
{
    const QPalette &colors = palette();
    const int base = y + fontMetrics().ascent();
    const int first = row * bytesPerRow;
    const int end = std::min(first + bytesPerRow, static_cast<int>(bytes.size()));
    // A cursor is of use to whoever has the keyboard here.
    const ByteRange selection = hasFocus() || cursor != anchor ? getSelection() : ByteRange();
    QColor markColor = colors.color(QPalette::Highlight);
    markColor.setAlpha(markAlpha);
    painter.setPen(colors.color(QPalette::PlaceholderText));
    painter.drawText(
        characterWidth, base,
        QStringLiteral("%1").arg(first, getOffsetDigits(), 16, QLatin1Char('0')).toUpper());
    for (int byte = first; byte < end; ++byte) {
        const auto place = static_cast<quint32>(byte);
        const bool isSelected
            = place >= selection.offset && place - selection.offset < selection.length;
        const int x = getDigitsX(byte - first);
        const int characterX = getCharacterX(byte - first);
        if (isSelected || isMarked(byte)) {
            const QColor ground = isSelected ? colors.color(QPalette::Highlight) : markColor;
            const int half = characterWidth / 2;
            painter.fillRect(x - half, y, characterWidth * 2 + half * 2, rowHeight, ground);
            painter.fillRect(characterX, y, characterWidth, rowHeight, ground);
        }
        const bool isQuiet = !open[place] || bytes.at(byte) == 0;
        painter.setPen(colors.color(isSelected ? QPalette::HighlightedText
                                    : isQuiet  ? QPalette::PlaceholderText
                                               : QPalette::Text));
        painter.drawText(x, base, getDigits(byte));
        painter.drawText(characterX, base, getCharacter(byte));
    }
}

} // namespace corvane
