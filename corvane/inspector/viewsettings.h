#pragma once

#include <QObject>

class QAction;
class QActionGroup;
class QMenu;
class QSettings;

namespace corvane {

/** How people want to see things, whatever they watch: set by actions, remembered by settings. */
class ViewSettings : public QObject
{
    Q_OBJECT

public:
    static constexpr int normalZoom = 100;
    static constexpr int defaultRefreshMs = 250;

    /** \a settings: not owned, must outlive the object. What they hold need not be right. */
    explicit ViewSettings(QSettings &settings, QObject *parent = nullptr);

    /** Whether times are shown in UTC, else in the time zone of this machine. */
    bool isUtc() const;
    /** How long counts and statistics stay as they are, in milliseconds. */
    int getRefreshMs() const;

    /** The size of the views' text in percent of the usual one. */
    int getZoom() const { return zoom; }

    /** Adds the actions, which the object owns. */
    void addTo(QMenu &menu);

Q_SIGNALS:
    void changed();

private:
    void createTimeAction();
    void createZoomActions();
    void createRefreshActions();
    void zoomBy(int steps);
    void setZoom(int percent);

    QSettings &settings;
    QAction *utcAction; ///< Owned as a child.
    QList<QAction *> zoomActions; ///< Owned as children.
    QActionGroup *refreshActions; ///< Owned as a child.
    int zoom = normalZoom;
};

} // namespace corvane
