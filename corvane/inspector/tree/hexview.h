#pragma once

#include "openbytes.h"

#include <QAbstractScrollArea>
#include <QByteArray>

namespace corvane {

/**
 * Bytes as offsets, hexadecimal digits and characters, in as many columns as there is room for.
 *
 * A byte that must not be seen is shown, and copied, as two dots. The arrow keys move the cursor
 * and, with Shift, select; the selection outlives new bytes as far as there are any.
 */
class HexView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit HexView(QWidget *parent = nullptr);

    /** \a open: whether each byte may be seen; as many as there are bytes. */
    void setBytes(const QByteArray &bytes, const std::vector<bool> &open);
    /** Marks what is looked at, and scrolls to it when it is another place than before. */
    void setMarked(const std::vector<ByteRange> &marked);

    const std::vector<ByteRange> &getMarked() const { return marked; }

    int getBytesPerRow() const { return bytesPerRow; }

    /** The row of that number as it is shown: offset, digits and characters. */
    QString getRowText(int row) const;
    /** The first selected byte and how many there are; a single one where the cursor stands. */
    ByteRange getSelection() const;
    /** The selected bytes as hexadecimal digits, "FE 09 00". */
    QString getSelectedText() const;
    /** To the clipboard. */
    void copy() const;
    void selectAll();
    QSize sizeHint() const override;

Q_SIGNALS:
    void selectionChanged();
    /** People pressed Enter at a byte, or clicked it twice. */
    void activated(int byte);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void layOut();
    int getRowCount() const;
    int getVisibleRowCount() const;
    int getOffsetDigits() const;
    int getWidthFor(int columns) const;
    int getDigitsX(int column) const;
    int getCharacterX(int column) const;
    int getByteAt(const QPoint &position) const;
    QString getDigits(int byte) const;
    QChar getCharacter(int byte) const;
    bool isMarked(int byte) const;
    void moveCursor(int byte, bool selecting);
    void scrollTo(int byte);
    int getMovedCursor(const QKeyEvent &event) const;
    void paintRow(QPainter &painter, int row, int y) const;

    QByteArray bytes;
    std::vector<bool> open;
    std::vector<ByteRange> marked;
    int bytesPerRow = 16;
    int cursor = 0;
    int anchor = 0; ///< The other end of the selection.
    int characterWidth = 1;
    int rowHeight = 1;
};

} // namespace corvane
