#pragma once

#include <QDialog>
#include <QTimer>

#include <memory>

#include "record/folder_probe.h"

class Recorder;

namespace Ui {
class form_record;
}

/// The window of the recorder: asks for folder and name, starts and stops, and shows how the recording goes. The
/// recording is the Recorder's and goes on while this window is closed. What the disk says about the typed folder is
/// asked while the window is open, and shown when it answers.
///
/// Main thread only.
class form_record : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(form_record)

public:
    /// `recorder` lives as long as this window is used.
    explicit form_record(Recorder *recorder, QWidget *parent = nullptr);
    ~form_record() override;

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private slots:
    void on_BTN_record_clicked();
    void on_BTN_browse_clicked();
    void on_BTN_folder_clicked();

private:
    QString typedFolder() const;
    QString typedName() const;
    void takeInput();
    void showOptions();
    void takeOptions();
    void askDisk();
    void takeFacts(const FolderFacts &facts);
    void showFolder(const FolderFacts &facts);
    void updateState();
    void updateFields();
    void updateFigures();
    void updateNotice();
    QString blockedReason() const;
    QString stateText() const;

    std::unique_ptr<Ui::form_record> m_ui;
    Recorder *m_recorder;
    FolderProbe m_probe;
    FolderFacts m_facts;        ///< of the folder typed last, once the disk has answered
    QTimer m_patience;          ///< runs out when the disk is slow: what is known is of another folder
    QString m_folderToShow;     ///< asked for by the user, while the disk has not answered
    quint64 m_showQuestion = 0; ///< the number of that question
    QString m_folderNotShown;   ///< asked for by the user in vain
    bool m_isWriting = false;   ///< the file takes its time to be closed
};
