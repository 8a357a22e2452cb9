#pragma once

#include <QDialog>
#include <QTimer>

#include <memory>

#include "record/folder_probe.h"

class Recorder;

namespace Ui {
class form_record;
}

/// The window of the recorder: asks for folder and name, starts and stops, and shows the progress of the recording. The
/// recording belongs to the Recorder and goes on while this window is closed. While the window is open, the disk is
/// queried about the typed folder, and its answer is shown when it arrives.
///
/// Main thread only.
class form_record : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(form_record)

public:
    /// `recorder` must live as long as this window is used.
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
    QTimer m_patience;          ///< runs out when the disk is slow: what is known is about another folder
    QString m_folderToShow;     ///< requested by the user, until the disk has answered
    quint64 m_showQuestion = 0; ///< the number of that query
    QString m_folderNotShown;   ///< requested by the user without success
    bool m_isWriting = false;   ///< closing the file takes a while
};
