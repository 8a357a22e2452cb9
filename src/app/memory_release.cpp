#include "app/memory_release.h"

#include <QCoreApplication>
#include <QTimer>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

constexpr int kMomentMs = 500;
constexpr int kLargeBlock = 1024 * 1024; ///< bytes; blocks that are allocated for every frame are smaller

} // namespace

void memory_release::keepLittle()
{
#ifdef __GLIBC__
    mallopt(M_MMAP_THRESHOLD, kLargeBlock);
    mallopt(M_TRIM_THRESHOLD, kLargeBlock);
#endif
}

void memory_release::soon()
{
#ifdef __GLIBC__
    static QTimer *timer = nullptr;
    if (!timer) {
        timer = new QTimer(QCoreApplication::instance());
        timer->setSingleShot(true);
        timer->setInterval(kMomentMs);
        QObject::connect(timer, &QTimer::timeout, timer, [] { malloc_trim(0); });
        QObject::connect(timer, &QObject::destroyed, timer, [] { timer = nullptr; });
    }
    timer->start();
#endif
}
