#include "updater/update_note_card.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "app/sentences.h"
#include "updater/verdict_text.h"

namespace {

constexpr int kMargin = 16; // pixels, like the next one
constexpr int kSpacing = 8;

} // namespace

UpdateNoteCard::UpdateNoteCard(QWidget *parent)
    : QFrame(parent), m_text(new QLabel(this)), m_continue(new QPushButton(this)), m_choose(new QPushButton(this)),
      m_forget(new QPushButton(this))
{
    setObjectName(QStringLiteral("CARD_note"));
    setProperty("card", true);
    m_text->setObjectName(QStringLiteral("LBL_note"));
    m_text->setProperty("role", QStringLiteral("warning"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_continue->setObjectName(QStringLiteral("BTN_continue"));
    m_choose->setObjectName(QStringLiteral("BTN_choose"));
    m_forget->setObjectName(QStringLiteral("BTN_forget"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kSpacing);
    layout->addWidget(m_text, 1);
    for (QPushButton *button : {m_continue, m_choose, m_forget}) {
        button->setAutoDefault(false);
        layout->addWidget(button, 0, Qt::AlignTop);
    }
    connect(m_continue, &QPushButton::clicked, this, &UpdateNoteCard::continueAsked);
    connect(m_choose, &QPushButton::clicked, this, &UpdateNoteCard::chooseAsked);
    connect(m_forget, &QPushButton::clicked, this, &UpdateNoteCard::forgetAsked);
    showTexts();
}

void UpdateNoteCard::setNote(const std::optional<UpdateNote> &note)
{
    m_note = note;
    showTexts();
}

void UpdateNoteCard::setBootloaderFound(bool isFound)
{
    m_isBootloaderFound = isFound;
    showTexts();
}

void UpdateNoteCard::setReady(bool isReady)
{
    for (QPushButton *button : {m_continue, m_choose, m_forget})
        button->setEnabled(isReady);
}

void UpdateNoteCard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        showTexts();
    QFrame::changeEvent(event);
}

void UpdateNoteCard::showTexts()
{
    const QString found =
        m_isBootloaderFound ? tr("The device runs its bootloader and sends no data: restart it, or choose a firmware.")
                            : QString();
    m_text->setText(
        m_note ? joinSentences({verdict_text::interrupted(*m_note),
                                m_isBootloaderFound ? tr("The device is waiting in its bootloader.") : QString()})
               : found);
    setVisible(!m_text->text().isEmpty());
    m_continue->setText(tr("Continue"));
    m_continue->setToolTip(tr("Chooses the same file, connects and downloads it"));
    m_choose->setText(tr("Choose firmware"));
    m_forget->setText(tr("Forget"));
    m_forget->setToolTip(tr("Removes the reminder of this update"));
    m_continue->setVisible(m_note.has_value());
    m_forget->setVisible(m_note.has_value());
    m_choose->setVisible(!m_note);
}
