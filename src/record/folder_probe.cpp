#include "record/folder_probe.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QStorageInfo>
#include <QThread>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>

namespace {

constexpr std::chrono::seconds kThreadDeadline{3};

qint64 freeBytes(const QFileInfo &folder)
{
    QFileInfo existing = folder;
    while (!existing.exists()) {
        const QString above = existing.path();
        if (above == existing.filePath())
            return -1;
        existing.setFile(above);
    }
    return QStorageInfo(existing.filePath()).bytesAvailable();
}

FolderFacts look(const QString &folder, quint64 number)
{
    const QFileInfo info(folder);
    return {folder, number, info.exists(), info.isDir(), freeBytes(info)};
}

} // namespace

/// Where questions are posted and answers fetched; `lock` guards everything.
struct FolderProbe::Desk
{
    std::mutex lock;
    std::condition_variable rung;
    FolderProbe *owner = nullptr; ///< null when it is gone
    QString question;             ///< empty: none
    quint64 number = 0;           ///< of the question
};

FolderProbe::FolderProbe(QObject *parent) : QObject(parent), m_desk(std::make_shared<Desk>())
{
    m_desk->owner = this;
}

FolderProbe::~FolderProbe()
{
    {
        const std::lock_guard locker(m_desk->lock);
        m_desk->owner = nullptr;
        m_desk->rung.notify_all();
    }
    if (!m_thread || m_thread->wait(QDeadlineTimer(kThreadDeadline)))
        return;
    qWarning("A disk does not answer; the thread that asks it is left to itself.");
    QThread *thread = m_thread.release();
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
}

quint64 FolderProbe::ask(const QString &folder)
{
    if (folder.isEmpty())
        return 0;
    {
        const std::lock_guard locker(m_desk->lock);
        m_desk->question = folder;
        m_desk->number = ++m_lastNumber;
        m_desk->rung.notify_all();
    }
    if (m_thread)
        return m_lastNumber;
    m_thread.reset(QThread::create([desk = m_desk] { answerQuestions(desk); }));
    m_thread->setObjectName(QStringLiteral("FolderProbe"));
    m_thread->start();
    return m_lastNumber;
}

/// The thread's work.
void FolderProbe::answerQuestions(const std::shared_ptr<Desk> &desk)
{
    std::unique_lock locker(desk->lock);
    while (desk->owner != nullptr) {
        if (desk->question.isEmpty()) {
            desk->rung.wait(locker);
            continue;
        }
        const QString folder = std::exchange(desk->question, {});
        const quint64 number = desk->number;
        locker.unlock();
        const FolderFacts facts = look(folder, number);
        locker.lock();
        if (FolderProbe *owner = desk->owner) // which cannot be destroyed before the lock is free
            QMetaObject::invokeMethod(
                owner, [owner, facts] { emit owner->answered(facts); }, Qt::QueuedConnection);
    }
}
