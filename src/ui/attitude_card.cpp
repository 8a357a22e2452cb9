#include "ui/attitude_card.h"

#include <QEvent>

#include "app/theme.h"
#include "app/value_format.h"
#include "attitude/tool_adi.h"
#include "session/device_session.h"
#include "ui/value_strip.h"
#include "ui_attitude_card.h"

namespace {

constexpr int kAdiHeight = 296;
constexpr int kAngleCharacters = 7;

} // namespace

AttitudeCard::AttitudeCard(DeviceSession *session, QWidget *parent)
    : QFrame(parent), m_ui(std::make_unique<Ui::AttitudeCard>()), m_session(session), m_adi(new ToolADI(this)),
      m_angles(new ValueStrip(this))
{
    m_ui->setupUi(this);
    m_ui->layout_adi->addWidget(m_adi);
    m_ui->layout_angles->addWidget(m_angles);
    static_cast<QVBoxLayout *>(layout())->addStretch(1);
    m_adi->setMinimumHeight(kAdiHeight);
    nameAngles();
}

AttitudeCard::~AttitudeCard() = default;

void AttitudeCard::refresh()
{
    const std::optional<StreamSample> &sample = m_session->newestSample();
    m_attitude = sample && m_session->isOpen()
                     ? attitude_convention::normalizeAttitude(sample->snapshot, m_session->preset())
                     : NormalizedAttitude();
    m_adi->setAttitude(m_attitude);
    m_angles->setEnabled(m_session->isStreaming());
    QStringList angles;
    if (m_attitude.valid) {
        for (const float angle : {m_attitude.euler.x(), m_attitude.euler.y(), m_attitude.euler.z()})
            angles.append(value_format::signedNumber(double(angle), 2));
    }
    m_angles->setTexts(angles);
}

QStringList AttitudeCard::lines() const
{
    return m_angles->lines();
}

void AttitudeCard::nameAngles()
{
    m_adi->setAccessibleName(m_ui->title_card_attitude->text());
    m_angles->setAccessibleName(m_ui->title_card_attitude->text());
    m_angles->setCells({{tr("Roll"), QStringLiteral("\u00B0"), &Palette::axisX, kAngleCharacters},
                        {tr("Pitch"), QStringLiteral("\u00B0"), &Palette::axisY, kAngleCharacters},
                        {tr("Yaw"), QStringLiteral("\u00B0"), &Palette::axisZ, kAngleCharacters}});
}

void AttitudeCard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        nameAngles();
    }
    QFrame::changeEvent(event);
}
