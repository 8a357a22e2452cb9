#pragma once

#include <QFrame>
#include <QPointer>
#include <QTimer>

class DeviceSession;
class Playback;
class QCheckBox;
class QComboBox;
class QLabel;
class QMenu;
class QPushButton;
class QSlider;

/// The controls of a file that is played back; visible only while one is open. Space plays and pauses wherever in the
/// bar it means nothing else. Main thread only.
class PlaybackBar : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PlaybackBar)

public:
    /// `session` outlives this.
    explicit PlaybackBar(DeviceSession *session, QWidget *parent = nullptr);

    /// "1:23:45.6", "3:05.0": a length of time.
    static QString timeText(qint64 ns);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void layOut();
    void retranslate();
    void onFile();
    void onState();
    void refresh();
    void toggle();
    void seekTo(int sliderValue);
    void showRate(double rate, bool keepsUp);
    void openMarkers();
    QMenu *addRangeMenu(QMenu *menu, const QString &title, bool isEnd);
    QString rateName(double rate) const;

    DeviceSession *m_session;
    Playback *m_playback;
    QTimer m_timer; ///< runs while visible
    QPushButton *m_play;
    QPushButton *m_step;
    QComboBox *m_rate;
    QSlider *m_position;
    QLabel *m_time;
    QCheckBox *m_loop;
    QCheckBox *m_skip;
    QPushButton *m_markers;
    QLabel *m_reached;
    QLabel *m_note;
    QPointer<QMenu> m_menu;
};
