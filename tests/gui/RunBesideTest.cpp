#include "files/RunBeside.h"

#include <gtest/gtest.h>

#include <QObject>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <new>

namespace ls {
namespace {

TEST(RunBeside, work_runsInAnotherThreadAndIsDoneAfterwards)
{
    const QThread* worker = nullptr;
    RunBeside([&worker] { worker = QThread::currentThread(); });
    EXPECT_NE(worker, nullptr);
    EXPECT_NE(worker, QThread::currentThread());
}

TEST(RunBeside, longWork_letsEventsPassMeanwhile)
{
    std::atomic<bool> passed = false;
    QObject context;
    QTimer::singleShot(0, &context, [&passed] { passed = true; });
    bool seen = false;
    RunBeside([&passed, &seen] {
        for (int i = 0; i < 5000 && !passed; ++i) {
            QThread::msleep(1);
        }
        seen = passed;
    });
    EXPECT_TRUE(seen);
}

TEST(RunBeside, faultOfTheWork_isTheCallers)
{
    EXPECT_THROW(RunBeside([] { throw std::bad_alloc(); }), std::bad_alloc);
}

TEST(RunBeside, faultOfLongWork_isTheCallers)
{
    EXPECT_THROW(RunBeside([] {
                     QThread::msleep(100);
                     throw std::bad_alloc();
                 }),
                 std::bad_alloc);
}

} // namespace
} // namespace ls
