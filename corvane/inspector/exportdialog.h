#pragma once

#include "exportwriter.h"

#include <QDialog>

class FormatInfo;
class MessageStatisticsCoordinator;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace corvane {

/** Asks what to export, in which form and to which file. */
class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    /**
     * Types that \a statistics knows come first and are chosen. \a hint says what will be exported
     * when. Nothing is owned or used after the constructor, but the types and fields.
     */
    ExportDialog(const FormatInfo &format,
                 const MessageStatisticsCoordinator &statistics,
                 const QString &hint,
                 QWidget *parent = nullptr);

    /** What was chosen, in the order of the list. */
    ExportOrder getOrder() const;

private:
    void fillList(const FormatInfo &format, const MessageStatisticsCoordinator &statistics);
    QLayout *createListButtons();
    QLayout *createFileRow();
    void createLayout(const QString &hint);
    void search(const QString &text);
    void checkVisible(bool checked);
    void chooseFile();
    void adaptFileName();
    void refresh();

    QLineEdit *searchEdit; ///< Owned as a child.
    QTreeWidget *list; ///< Owned as a child.
    QComboBox *form; ///< Owned as a child.
    QCheckBox *symbolic; ///< Owned as a child.
    QLineEdit *file; ///< Owned as a child.
    QLabel *note; ///< Owned as a child.
    QPushButton *exportButton = nullptr; ///< Owned as a child.
};

} // namespace corvane
