#pragma once

#include <QFrame>

#include <optional>

#include "updater/update_note.h"

class QLabel;
class QPushButton;

/// Shows that an update before has not come to its end, or that a device was found in its bootloader, and what can be
/// done about it. Hidden while there is nothing to say. Main thread only.
class UpdateNoteCard : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdateNoteCard)

public:
    explicit UpdateNoteCard(QWidget *parent = nullptr);

    /// None: no update is open.
    void setNote(const std::optional<UpdateNote> &note);
    /// The device of the session was found in its bootloader without anybody here having asked for it.
    void setBootloaderFound(bool isFound);
    /// Its buttons can be pressed.
    void setReady(bool isReady);
    const std::optional<UpdateNote> &note() const { return m_note; }

signals:
    /// Write the file of the note again.
    void continueAsked();
    void forgetAsked();
    /// Choose a firmware for the device that was found.
    void chooseAsked();

protected:
    void changeEvent(QEvent *event) override;

private:
    void showTexts();

    std::optional<UpdateNote> m_note;
    bool m_isBootloaderFound = false;
    QLabel *m_text;
    QPushButton *m_continue;
    QPushButton *m_choose;
    QPushButton *m_forget;
};
