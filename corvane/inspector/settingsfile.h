#pragma once

#include <QString>

#include <memory>

class QSettings;

namespace corvane {

/**
 * The program's settings, looked at before anybody relies on them. A file that holds what the
 * program cannot have written is put aside under another name, and the program begins with its
 * defaults.
 *
 * Widgets write bytes that only they understand and trust what they read back. Such values are
 * sealed when they are saved, and a value whose seal is wrong or missing is not theirs.
 */
class SettingsFile
{
public:
    /** \a path need not exist. */
    explicit SettingsFile(const QString &path);
    ~SettingsFile();

    QSettings &get() { return *settings; }

    /** What people should know of the file, in a sentence or two; empty if all is well. */
    const QString &getNotice() const { return notice; }

    /** Where the settings of this person are. */
    static QString getDefaultPath();
    /** Seals all values that are bytes; to be called when they have been saved. */
    static void seal(QSettings &settings);
    /** The first key whose value the program cannot have written; empty if there is none. */
    static QString findBrokenKey(const QSettings &settings);

private:
    void putAside(const QString &path, const QString &problem);

    std::unique_ptr<QSettings> settings;
    QString notice;
};

} // namespace corvane
