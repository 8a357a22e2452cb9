#include "ui/readout_accessible.h"

#include <QAccessibleWidget>

#include <functional>

#include "ui/value_card.h"
#include "ui/value_strip.h"

namespace {

class Readout : public QAccessibleWidget
{
public:
    Readout(QWidget *widget, std::function<QStringList()> lines)
        : QAccessibleWidget(widget, QAccessible::StaticText), m_lines(std::move(lines))
    {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_lines().join(u'\n').replace(u'\t', u' ') : QAccessibleWidget::text(kind);
    }

private:
    std::function<QStringList()> m_lines;
};

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    if (auto *card = qobject_cast<ValueCard *>(object))
        return new Readout(card, [card] { return card->lines(); });
    if (auto *strip = qobject_cast<ValueStrip *>(object))
        return new Readout(strip, [strip] { return strip->lines(); });
    return nullptr;
}

} // namespace

void readout_accessible::install()
{
    [[maybe_unused]] static const bool isInstalled = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
}
