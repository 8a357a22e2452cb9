#pragma once

#include <QWidget>

#include <array>
#include <optional>

#include "attitude/attitude_convention.h"

class QLabel;

/// Numbers of an attitude: roll, pitch and yaw in degrees, live and relative to the home reference, and the display
/// quaternion. Missing numbers are shown as a dash; nothing moves as numbers change.
class AttitudeFigures : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AttitudeFigures)

public:
    explicit AttitudeFigures(QWidget *parent = nullptr);

    /// `relative` holds display angles from home; empty without a home reference.
    void show(const NormalizedAttitude &live, const std::optional<QVector3D> &relative);

protected:
    void changeEvent(QEvent *event) override;

private:
    void setTexts();
    void setFonts();
    void setColors();

    std::array<QLabel *, 6> m_names{};   ///< live, delta, roll, pitch, yaw, quaternion
    std::array<QLabel *, 10> m_values{}; ///< live angles, relative angles, w x y z
};
