#include "ui/sensor_data_panel.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>

#include <cmath>
#include <tuple>

#include "app/theme.h"
#include "app/value_format.h"
#include "ui/value_card.h"
#include "ui/value_strip.h"

namespace {

QList<ValueCard::Channel> vectorChannels(const QString &norm)
{
    return {{QStringLiteral("X"), &Palette::axisX},
            {QStringLiteral("Y"), &Palette::axisY},
            {QStringLiteral("Z"), &Palette::axisZ},
            {norm, &Palette::norm, true}};
}

QList<ValueCard::Channel> quaternionChannels()
{
    return {{QStringLiteral("W"), &Palette::axisW},
            {QStringLiteral("X"), &Palette::axisX},
            {QStringLiteral("Y"), &Palette::axisY},
            {QStringLiteral("Z"), &Palette::axisZ}};
}

std::array<float, 4> withNorm(const float (&v)[3])
{
    return {v[0], v[1], v[2], std::hypot(v[0], v[1], v[2])};
}

void showOn(ValueCard *card, bool present, std::span<const float> values)
{
    if (present)
        card->setValues(values);
    else
        card->setAbsent();
}

} // namespace

SensorDataPanel::SensorDataPanel(QWidget *parent)
    : QWidget(parent), m_acceleration(new ValueCard(vectorChannels(QStringLiteral("|a|")), {3, 2, 2.0}, this)),
      m_angularRate(new ValueCard(vectorChannels(QStringLiteral("|\u03C9|")), {2, 4, 10.0}, this)),
      m_magneticField(new ValueCard(vectorChannels(QStringLiteral("|m|")), {1, 4, 100.0}, this)),
      m_quaternion(new ValueCard(quaternionChannels(), {4, 1, 1.0}, this)), m_summaryCard(new QFrame(this)),
      m_summary(new ValueStrip(m_summaryCard))
{
    m_summaryCard->setProperty("card", true);
    auto *summaryLayout = new QHBoxLayout(m_summaryCard);
    summaryLayout->setContentsMargins(theme::kGrid, theme::kGrid, theme::kGrid, theme::kGrid);
    summaryLayout->addWidget(m_summary);

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(theme::kGrid);
    layout->addWidget(m_acceleration, 0, 0);
    layout->addWidget(m_angularRate, 0, 1);
    layout->addWidget(m_magneticField, 1, 0);
    layout->addWidget(m_quaternion, 1, 1);
    layout->addWidget(m_summaryCard, 2, 0, 1, 2);
    layout->setRowStretch(0, 1);
    layout->setRowStretch(1, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    retranslate();
    clear();
}

QList<ValueCard *> SensorDataPanel::cards() const
{
    return {m_acceleration, m_angularRate, m_magneticField, m_quaternion};
}

void SensorDataPanel::retranslate()
{
    m_acceleration->setTitle(tr("Acceleration"), QStringLiteral("G"));
    m_angularRate->setTitle(tr("Angular velocity"), QStringLiteral("\u00B0/s"));
    m_magneticField->setTitle(tr("Magnetic field"), QStringLiteral("\u00B5T"));
    m_quaternion->setTitle(tr("Quaternion"), QString());
    m_summary->setAccessibleName(tr("Node"));
    m_summary->setCells({{tr("Node"), QString(), &Palette::text, 3},
                         {tr("Device time"), QString(), &Palette::text, 12},
                         {tr("Temperature"), QStringLiteral("\u00B0C"), &Palette::text, 6},
                         {tr("Pressure"), QStringLiteral("Pa"), &Palette::text, 8}});
}

void SensorDataPanel::appendSample(const StreamSample &sample)
{
    const node_data_t &node = sample.snapshot.sample;
    // By the stream's time, which is one for both clocks of a node; without a clock, a pause of the computer would be
    // taken for a gap. Shorter gaps are too small for a trace to show.
    const SampleGaps::Step step = sample.deviceMs != 0 ? m_gaps.add(node.time_ms, sample.hostMs) : SampleGaps::Step();
    const bool isGap = step.missing > 0 && step.gapMs > TraceBuffer::kBucketMs;
    const bool isBroken = isGap || sample.brokenBy != StreamBreak::None;
    const qint64 nowMs = m_clock.place(node.time_ms, sample.hostMs);
    const std::tuple<SampleField, ValueCard *, std::span<const float>> quantities[] = {
        {SampleField::Acceleration, m_acceleration, node.acc},
        {SampleField::AngularRate, m_angularRate, node.gyr},
        {SampleField::MagneticField, m_magneticField, node.mag},
        {SampleField::Quaternion, m_quaternion, node.quat}};
    for (const auto &[field, card, values] : quantities) {
        if (sample.fields.testFlag(field))
            card->appendTrace(nowMs, values, isBroken);
    }
}

void SensorDataPanel::setModel(const SensorDataModel &model)
{
    const node_data_t &node = model.node;
    showOn(m_acceleration, model.fields.testFlag(SampleField::Acceleration), withNorm(node.acc));
    showOn(m_angularRate, model.fields.testFlag(SampleField::AngularRate), withNorm(node.gyr));
    showOn(m_magneticField, model.fields.testFlag(SampleField::MagneticField), withNorm(node.mag));
    showOn(m_quaternion, model.fields.testFlag(SampleField::Quaternion), node.quat);

    const auto orDash = [&model](SampleField field, const QString &text) {
        return model.fields.testFlag(field) ? text : value_format::absent();
    };
    m_summary->setTexts({QString::number(node.id), orDash(SampleField::Time, value_format::deviceTime(node.time_ms)),
                         orDash(SampleField::Temperature, value_format::number(double(node.temperature), 1)),
                         orDash(SampleField::Pressure, value_format::number(double(node.pressure), 1))});
}

void SensorDataPanel::setSummaryVisible(bool visible)
{
    m_summaryCard->setVisible(visible);
}

void SensorDataPanel::advance(qint64 nowMs)
{
    for (ValueCard *card : cards())
        card->advance(nowMs);
}

void SensorDataPanel::clear()
{
    for (ValueCard *card : cards())
        card->clear();
    m_summary->setTexts({});
    m_clock = {};
    m_gaps = {};
}

QString SensorDataPanel::text() const
{
    QStringList all;
    for (const ValueCard *card : cards())
        all += card->lines();
    if (m_summaryCard->isVisibleTo(this))
        all += m_summary->lines();
    return all.join(u'\n');
}
