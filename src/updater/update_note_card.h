#pragma once

#include <QFrame>

#include <optional>

#include "updater/update_note.h"

class QLabel;
class QPushButton;

/// Shows that an earlier update did not finish, or that a device was found in its bootloader, and what can be done
/// about it. Hidden while there is nothing to say. Main thread only.
class UpdateNoteCard : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdateNoteCard)

public:
    explicit UpdateNoteCard(QWidget *parent = nullptr);

    /// None: no update is open.
    void setNote(const std::optional<UpdateNote> &note);
    /// The session's device was found in its bootloader although nobody requested it here.
    void setBootloaderFound(bool isFound);
    /// Whether its buttons can be pressed.
    void setReady(bool isReady);
    const std::optional<UpdateNote> &note() const { return m_note; }

signals:
    /// The user wants to write the file of the note again.
    void continueAsked();
    void forgetAsked();
    /// The user wants to choose firmware for the device that was found.
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
