#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QThread;

/// What is known about a folder on a disk. A plain value.
struct FolderFacts
{
    QString folder;     ///< the queried folder; empty: nothing is known
    quint64 number = 0; ///< of the question
    bool exists = false;
    bool isFolder = false;
    qint64 freeBytes =
        -1; ///< what the user may still write to its disk, or to the one where it would be; -1: not known
};

/// Queries folders on a thread of its own, because a disk may take seconds to answer. Main thread only.
///
/// The thread starts with the first question. The destructor waits at most three seconds for an answer that is
/// outstanding; a disk that hangs longer keeps its thread until the program has ended.
class FolderProbe : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FolderProbe)

public:
    explicit FolderProbe(QObject *parent = nullptr);
    ~FolderProbe() override;

    /// answered() follows. A question that is not being answered yet is replaced by this one. Returns its number, which
    /// grows; 0: the folder is empty and nothing is queried.
    quint64 ask(const QString &folder);

signals:
    void answered(const FolderFacts &facts);

private:
    struct Desk;
    static void answerQuestions(const std::shared_ptr<Desk> &desk);

    std::shared_ptr<Desk> m_desk; ///< shared with the thread, which may outlive this object
    quint64 m_lastNumber = 0;
    std::unique_ptr<QThread> m_thread;
};
