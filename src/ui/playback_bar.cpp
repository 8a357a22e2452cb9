#include "ui/playback_bar.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyle>

#include <algorithm>
#include <cmath>

#include "app/quiet_label.h"
#include "app/theme.h"
#include "session/device_session.h"
#include "session/playback.h"

namespace {

constexpr int kTickMs = 100;
constexpr qint64 kSliderStepNs = 100'000'000; // a position of the slider
constexpr int kMaxPositions = 1'000'000'000;
constexpr int kFewSteps = 10; // a key press moves by a second
constexpr int kManySteps = 100;
constexpr int kMaxMarkersShown = 30;
constexpr double kRates[] = {0.1, 0.2, 0.5, 1, 2, 5, 10, 20, 50, PlayClock::kUnthrottled};

int positions(qint64 ns)
{
    return int(std::clamp<qint64>(ns / kSliderStepNs, 0, kMaxPositions));
}

} // namespace

PlaybackBar::PlaybackBar(DeviceSession *session, QWidget *parent)
    : QFrame(parent), m_session(session), m_playback(&session->playback()), m_timer(this),
      m_play(new QPushButton(this)), m_step(new QPushButton(this)), m_rate(new QComboBox(this)),
      m_position(new QSlider(Qt::Horizontal, this)), m_time(new QLabel(this)), m_loop(new QCheckBox(this)),
      m_skip(new QCheckBox(this)), m_markers(new QPushButton(this)), m_reached(new QLabel(this)),
      m_note(new QLabel(this))
{
    setObjectName(QStringLiteral("playback_bar"));
    setProperty("card", true);
    setFocusPolicy(Qt::NoFocus);
    layOut();
    m_timer.setInterval(kTickMs);
    connect(&m_timer, &QTimer::timeout, this, &PlaybackBar::refresh);
    connect(m_play, &QPushButton::clicked, this, &PlaybackBar::toggle);
    connect(m_step, &QPushButton::clicked, m_playback, &Playback::step);
    connect(m_rate, &QComboBox::activated, this, [this](int index) { m_playback->setRate(kRates[index]); });
    connect(m_position, &QSlider::valueChanged, this, &PlaybackBar::seekTo);
    connect(m_position, &QSlider::sliderMoved, this, &PlaybackBar::refresh);
    connect(m_loop, &QCheckBox::toggled, m_playback, &Playback::setLooping);
    connect(m_skip, &QCheckBox::toggled, m_playback, &Playback::setSkipsGaps);
    connect(m_markers, &QPushButton::clicked, this, &PlaybackBar::openMarkers);
    connect(m_playback, &Playback::fileChanged, this, &PlaybackBar::onFile);
    connect(m_playback, &Playback::stateChanged, this, &PlaybackBar::onState);
    connect(m_playback, &Playback::rateMeasured, this, &PlaybackBar::showRate);
    retranslate();
    onFile();
}

void PlaybackBar::layOut()
{
    const std::pair<QWidget *, const char *> names[] = {{m_play, "button_play"},       {m_step, "button_step"},
                                                        {m_rate, "CB_play_rate"},      {m_time, "label_time"},
                                                        {m_loop, "CHK_loop"},          {m_skip, "CHK_skip_gaps"},
                                                        {m_note, "label_note"},        {m_position, "slider_played"},
                                                        {m_markers, "button_markers"}, {m_reached, "label_reached"}};
    for (const auto &[widget, name] : names)
        widget->setObjectName(QLatin1String(name));
    for (const double rate : kRates)
        m_rate->addItem(rateName(rate));
    m_rate->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_position->setTracking(false); // seeks once, where it is let go
    m_position->setSingleStep(kFewSteps);
    m_position->setPageStep(kManySteps);
    m_position->setMinimumWidth(theme::kGrid * 12);
    m_note->setProperty("role", QStringLiteral("secondary"));
    m_note->setWordWrap(true);
    m_reached->setProperty("role", QStringLiteral("secondary"));
    m_reached->setWordWrap(true);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(theme::kGrid, theme::kGrid, theme::kGrid, theme::kGrid);
    rows->setSpacing(theme::kGrid / 2);
    auto *timeRow = new QHBoxLayout;
    timeRow->setSpacing(theme::kGrid);
    timeRow->addWidget(m_play);
    timeRow->addWidget(m_position, 1);
    timeRow->addWidget(m_time);
    rows->addLayout(timeRow);
    auto *row = new QHBoxLayout;
    row->setSpacing(theme::kGrid);
    for (QWidget *widget : std::initializer_list<QWidget *>{m_step, m_rate, m_loop, m_skip, m_markers})
        row->addWidget(widget);
    row->addWidget(m_reached, 1);
    rows->addLayout(row);
    rows->addWidget(m_note);
    // In the order in which they are seen.
    QWidget *before = m_play;
    for (QWidget *next : std::initializer_list<QWidget *>{m_position, m_step, m_rate, m_loop, m_skip, m_markers}) {
        setTabOrder(before, next);
        before = next;
    }
}

QString PlaybackBar::rateName(double rate) const
{
    return rate == PlayClock::kUnthrottled ? tr("Unthrottled") : QStringLiteral("%1\u00d7").arg(rate);
}

QString PlaybackBar::timeText(qint64 ns)
{
    const qint64 tenths = std::max<qint64>(ns, 0) / 100'000'000;
    const qint64 seconds = tenths / 10;
    const QString rest = QStringLiteral("%1.%2").arg(seconds % 60, 2, 10, QLatin1Char('0')).arg(tenths % 10);
    return seconds < 3600 ? QStringLiteral("%1:%2").arg(seconds / 60).arg(rest)
                          : QStringLiteral("%1:%2:%3")
                                .arg(seconds / 3600)
                                .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
                                .arg(rest);
}

void PlaybackBar::onFile()
{
    setVisible(m_playback->isActive());
    m_reached->clear();
    if (!m_playback->isActive()) {
        m_timer.stop();
        if (m_menu)
            m_menu->close();
        return;
    }
    m_timer.start();
    const QSignalBlocker blocker(m_position);
    m_note->setVisible(m_session->isReconstruction());
    m_position->setRange(0, positions(m_playback->file().endNs - m_playback->file().startNs));
    m_position->setValue(0);
    m_note->setText(m_session->isReconstruction()
                        ? tr("Reconstructed from a CSV recording: fields that it does not hold are 0, and times are "
                             "spread over each second.")
                        : QString());
    refresh();
    m_play->setFocus();
}

void PlaybackBar::onState()
{
    m_play->setText(m_playback->isPlaying() ? tr("Pause") : tr("Play"));
    m_play->setAccessibleName(m_play->text());
    const QSignalBlocker blockers[] = {QSignalBlocker(m_loop), QSignalBlocker(m_skip)};
    m_loop->setChecked(m_playback->isLooping());
    m_skip->setChecked(m_playback->skipsGaps());
    const auto *rate = std::find(std::begin(kRates), std::end(kRates), m_playback->rate());
    m_rate->setCurrentIndex(rate != std::end(kRates) ? int(rate - std::begin(kRates)) : -1);
    if (!m_playback->isPlaying())
        setTextIfChanged(m_reached, m_playback->isAtEnd() ? tr("At the end") : QString());
    refresh();
}

void PlaybackBar::refresh()
{
    if (!m_playback->isActive())
        return;
    const PlayedFile &file = m_playback->file();
    const qint64 lengthNs = file.endNs - file.startNs;
    qint64 atNs = std::clamp<qint64>(m_playback->positionNs() - file.startNs, 0, std::max<qint64>(lengthNs, 0));
    if (m_position->isSliderDown()) {
        atNs = m_position->sliderPosition() * kSliderStepNs;
    } else {
        const QSignalBlocker blocker(m_position);
        m_position->setValue(positions(atNs));
    }
    setTextIfChanged(m_time, QStringLiteral("%1 / %2").arg(timeText(atNs), timeText(lengthNs)));
}

void PlaybackBar::toggle()
{
    if (m_playback->isPlaying())
        m_playback->pause();
    else
        m_playback->play();
}

void PlaybackBar::seekTo(int sliderValue)
{
    const PlayedFile &file = m_playback->file();
    m_playback->seek(sliderValue < m_position->maximum() ? file.startNs + sliderValue * kSliderStepNs : file.endNs);
}

void PlaybackBar::showRate(double rate, bool keepsUp)
{
    const QString reached = tr("reached: %1").arg(QString::number(rate, 'f', 1) + u'\u00d7');
    setTextIfChanged(m_reached,
                     keepsUp ? reached : tr("%1. This computer cannot keep up; nothing is left out.").arg(reached));
}

/// The user picks where the played part begins and ends.
void PlaybackBar::openMarkers()
{
    if (m_menu)
        m_menu->deleteLater();
    m_menu = new QMenu(this);
    m_menu->setAttribute(Qt::WA_DeleteOnClose);
    const PlayedFile &file = m_playback->file();
    QAction *whole = m_menu->addAction(tr("Play the whole file"));
    connect(whole, &QAction::triggered, this,
            [this] { m_playback->setRange(m_playback->file().startNs, m_playback->file().endNs); });
    whole->setEnabled(m_playback->fromNs() != file.startNs || m_playback->toNs() != file.endNs);
    addRangeMenu(m_menu, tr("Play from"), false);
    addRangeMenu(m_menu, tr("Play to"), true);
    m_menu->popup(m_markers->mapToGlobal(QPoint(0, m_markers->height())));
}

QMenu *PlaybackBar::addRangeMenu(QMenu *menu, const QString &title, bool isEnd)
{
    QMenu *range = menu->addMenu(title);
    const auto add = [&](const QString &text, qint64 timeNs) {
        QAction *action = range->addAction(QString(text).replace(u'&', QLatin1String("&&")));
        action->setCheckable(true);
        action->setChecked(timeNs == (isEnd ? m_playback->toNs() : m_playback->fromNs()));
        connect(action, &QAction::triggered, this, [this, timeNs, isEnd] {
            const qint64 otherNs = isEnd ? m_playback->fromNs() : m_playback->toNs();
            const PlayedFile &file = m_playback->file();
            if (isEnd)
                m_playback->setRange(otherNs < timeNs ? otherNs : file.startNs, timeNs);
            else
                m_playback->setRange(timeNs, timeNs < otherNs ? otherNs : file.endNs);
        });
    };
    const PlayedFile &file = m_playback->file();
    const qint64 hereNs = m_playback->positionNs();
    add(isEnd ? tr("The end") : tr("The start"), isEnd ? file.endNs : file.startNs);
    add(tr("Here (%1)").arg(timeText(hereNs - file.startNs)), hereNs);
    int shown = 0;
    for (const CaptureEvent &marker : file.markers) {
        if (++shown <= kMaxMarkersShown)
            add(QStringLiteral("%1  %2").arg(timeText(marker.timeNs - file.startNs), marker.text.left(60)),
                marker.timeNs);
    }
    return range;
}

void PlaybackBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier)
        toggle();
    else
        QFrame::keyPressEvent(event);
}

void PlaybackBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        onFile();
    }
    QFrame::changeEvent(event);
}

void PlaybackBar::retranslate()
{
    setAccessibleName(tr("Playback"));
    m_play->setToolTip(tr("Play or pause (Space)"));
    m_step->setText(tr("Step"));
    m_step->setToolTip(tr("Play one packet"));
    m_rate->setItemText(m_rate->count() - 1, rateName(PlayClock::kUnthrottled));
    m_rate->setToolTip(tr("How fast the file is played"));
    m_rate->setAccessibleName(tr("Rate"));
    m_position->setAccessibleName(tr("Position in the file"));
    m_time->setAccessibleName(tr("Position and length"));
    m_loop->setText(tr("Loop"));
    m_loop->setToolTip(tr("Play again from the start when the end is reached"));
    m_skip->setText(tr("Skip gaps"));
    m_skip->setToolTip(tr("Skip times without data of more than 2 s"));
    m_markers->setText(tr("Part..."));
    m_markers->setToolTip(tr("Play from marker to marker"));
    m_reached->setAccessibleName(tr("Rate that is reached"));
    for (QAbstractButton *button : std::initializer_list<QAbstractButton *>{m_step, m_loop, m_skip, m_markers})
        button->setAccessibleName(button->text());
    onState();
}
