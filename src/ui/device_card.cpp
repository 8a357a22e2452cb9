#include "ui/device_card.h"

#include <QEvent>

#include "app/value_format.h"
#include "session/device_session.h"
#include "ui/device_text.h"
#include "ui_device_card.h"

DeviceCard::DeviceCard(DeviceSession *session, QWidget *parent)
    : QFrame(parent), m_ui(std::make_unique<Ui::DeviceCard>()), m_session(session)
{
    m_ui->setupUi(this);
    // These show external texts, which must not be read as markup.
    for (QLabel *label : {m_ui->label_product, m_ui->label_model, m_ui->label_build, m_ui->label_uuid})
        label->setTextFormat(Qt::PlainText);
    connect(m_ui->combo_mounting, &QComboBox::activated, this,
            [this](int index) { m_session->setPreset(OrientationPreset(index)); });
    connect(session, &DeviceSession::deviceChanged, this, &DeviceCard::showDevice);
    connect(session, &DeviceSession::presetChanged, this, &DeviceCard::showDevice);
    showDevice();
}

DeviceCard::~DeviceCard() = default;

void DeviceCard::showDevice()
{
    const auto orDash = [](const QString &text) { return text.isEmpty() ? value_format::absent() : text; };
    const DetectedDevice &device = m_session->device();
    m_ui->label_product->setText(device.valid ? device_text::productName(m_session->profile())
                                              : value_format::absent());
    m_ui->label_model->setText(orDash(device.modelLine));
    m_ui->label_build->setText(orDash(device_text::withoutKeyword(device.buildLine, QLatin1String("build"))));
    m_ui->label_uuid->setText(orDash(device_text::withoutKeyword(device.uuidLine, QLatin1String("UUID"))));
    for (QLabel *label : {m_ui->label_product, m_ui->label_model, m_ui->label_build, m_ui->label_uuid})
        label->setToolTip(device_text::plainToolTip(label->text()));
    m_ui->combo_mounting->setCurrentIndex(m_session->preset() == OrientationPreset::FluNwuZyx ? 1 : 0);
}

void DeviceCard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        showDevice();
    }
    QFrame::changeEvent(event);
}
