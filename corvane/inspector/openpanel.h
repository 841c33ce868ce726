#pragma once

#include "recentsources.h"

#include <QWidget>

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QSettings;
class QToolButton;

namespace corvane {

class NoticeArea;

/** A list of files that people add to and remove from. */
class FileList : public QWidget
{
    Q_OBJECT

public:
    /**
     * \a name: for people who hear the window. \a hint: what would fill it. \a filter: of the file
     * dialog.
     */
    FileList(const QString &name, const QString &hint, QString filter, QWidget *parent = nullptr);

    QStringList getFiles() const;
    void setFiles(const QStringList &files);
    void addFiles(const QStringList &files);
    /** So that Enter or Space chooses files. */
    void focusAddButton();

Q_SIGNALS:
    void changed();

private:
    void choose();
    void removeChosen();

    QString filter;
    QListWidget *list; ///< Owned as a child.
    QToolButton *addButton; ///< Owned as a child.
};

/**
 * Where people start: the sources that they watched before, and a new one of any kind with the
 * definitions of its messages. Files may be dropped onto it.
 */
class OpenPanel : public QWidget
{
    Q_OBJECT

public:
    /** \a settings: not owned, must outlive the panel. */
    explicit OpenPanel(QSettings &settings, QWidget *parent = nullptr);

    /** What is written in the panel at present. */
    SourceChoice getChoice() const;
    void setChoice(const SourceChoice &choice);
    /** Sorts \a files by what they are: definitions, overlays, or the source itself. */
    void addFiles(const QStringList &files);
    void say(const QString &text);
    /** Asks for the source to be opened, or says what is missing. A program is asked for twice. */
    void open();
    void refreshRecent();

    /** Where what does not belong to the choice is said. */
    NoticeArea *getNotices() const { return notices; }

Q_SIGNALS:
    void chosen(const corvane::SourceChoice &choice);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QWidget *createRecentList();
    QWidget *createForm();
    void createButtons(QGridLayout &layout, int row);
    void takeKind();
    void takeRecent();
    void fillPorts();
    void chooseFile();
    void openHostFeed();
    QString missing(const SourceChoice &choice) const;

    RecentSources recent;
    NoticeArea *notices; ///< Owned as a child, as are all others.
    QListWidget *recentList = nullptr;
    QComboBox *kind = nullptr;
    QLineEdit *address = nullptr;
    QToolButton *browse = nullptr;
    FileList *definitions = nullptr;
    FileList *overlays = nullptr;
    QComboBox *framing = nullptr;
    QLineEdit *root = nullptr;
    QLabel *notice = nullptr;
    QPushButton *openButton = nullptr;
    QString confirmedProgram; ///< The program that people were asked about.
};

} // namespace corvane
