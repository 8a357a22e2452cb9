#include "ui/form_about.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QIcon>

#include "app/window_host.h"
#include "ui/app_version.h"
#include "ui_form_about.h"

namespace {

constexpr int kIconSize = 64;
constexpr int kTextWidth = 432;

} // namespace

form_about::form_about(QWidget *parent) : QDialog(parent), m_ui(std::make_unique<Ui::form_about>())
{
    m_ui->setupUi(this);
    // Wrapped texts need a width for their layout; it follows the font.
    m_ui->LBL_what->setMinimumWidth(qMax(kTextWidth, 56 * fontMetrics().averageCharWidth()));
    const QPixmap icon = QApplication::windowIcon().pixmap(QSize(kIconSize, kIconSize), devicePixelRatio());
    m_ui->LBL_icon->setPixmap(icon);
    m_ui->LBL_icon->setVisible(!icon.isNull());
    fillTexts();
    WindowHost::attach(this);
}

form_about::~form_about() = default;

void form_about::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        fillTexts();
    } else if (event->type() == QEvent::FontChange) {
        fillTexts();
    }
    QDialog::changeEvent(event);
}

void form_about::fillTexts()
{
    QFont nameFont = font();
    nameFont.setPointSizeF(font().pointSizeF() * 1.5);
    nameFont.setWeight(QFont::DemiBold);
    m_ui->LBL_name->setFont(nameFont);
    m_ui->LBL_version->setText(appVersion());
    m_ui->LBL_toolkit->setText(
        tr("Qt %1 (licence: GNU LGPL 3; Qt Quick 3D: GNU GPL 3)").arg(QLatin1String(qVersion())));
    m_ui->LE_folder->setText(QDir::toNativeSeparators(QDir::currentPath()));
    m_ui->LE_folder->setCursorPosition(0);
}
