#pragma once

#include <QComboBox>
#include <QSet>

#include <optional>

namespace corvane {

class SenderTable;

/** Whose messages the views show: those of one sender, or of all. */
class SenderChooser : public QComboBox
{
    Q_OBJECT

public:
    /** \a senders: not owned, must outlive the chooser. */
    explicit SenderChooser(const SenderTable &senders, QWidget *parent = nullptr);

    /** Adds the senders that are new. */
    void refresh();
    /** Whether there is anything to choose. */
    bool hasChoice() const;
    void choose(std::optional<quint32> sender);

Q_SIGNALS:
    void chosen(std::optional<quint32> sender);

private:
    const SenderTable &senders;
    QSet<quint32> offered; ///< The numbers of those that can be chosen.
};

} // namespace corvane
