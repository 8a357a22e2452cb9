#pragma once

#include <QWidget>

#include "attitude/attitude_convention.h"

struct AdiLayout;
class QPainter;

/// Attitude indicator as in an aircraft: a ball with sky and ground, pitch ladder, bank scale with a sky pointer, fixed
/// aircraft symbol, and a heading tape below. Scales to any size; parts that do not fit are left out. The background is
/// transparent. Main thread, like every widget.
///
/// Senses: a positive pitch is nose up (the horizon sinks), a positive roll is right wing down (the horizon turns
/// counter-clockwise on the screen), headings count clockwise from north, 000 to 359 degrees.
class ToolADI : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ToolADI)

public:
    explicit ToolADI(QWidget *parent = nullptr);

    /// Shows an attitude; repaints only when it differs from the one shown. Only its display quaternion is used: its
    /// Euler angles are for display as numbers, and their yaw sign depends on their source. An attitude that is not
    /// valid, or whose quaternion is not finite, greys the instrument.
    void setAttitude(const NormalizedAttitude &attitude);

    /// An attitude is shown (not the grey "No attitude" state).
    bool hasAttitude() const { return m_shown.valid; }
    /// The heading shown, rounded to whole degrees, 0 to 359.
    int heading() const;

    QSize sizeHint() const override { return {240, 240}; }
    QSize minimumSizeHint() const override { return {80, 80}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    /// The attitude on the screen, in degrees.
    struct Shown
    {
        bool valid = false;
        qreal roll = 0;
        qreal pitch = 0;
        qreal yaw = 0;
        bool operator==(const Shown &) const = default;
    };

    void drawBall(QPainter &painter, const AdiLayout &layout) const;
    void drawLadder(QPainter &painter, const AdiLayout &layout) const;
    void drawBankScale(QPainter &painter, const AdiLayout &layout) const;
    void drawAircraft(QPainter &painter, const AdiLayout &layout) const;
    void drawHeading(QPainter &painter, const AdiLayout &layout) const;
    void drawNoAttitude(QPainter &painter, const AdiLayout &layout) const;

    Shown m_shown;
};
