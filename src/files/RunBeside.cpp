#include "files/RunBeside.h"

#include <QEventLoop>
#include <QThread>

#include <exception>
#include <memory>

namespace ls {

namespace {

// No events are handled for this long. Together with what follows, the wait stays below a tenth of a second;
// longer than that, a program seems to hang.
constexpr unsigned long PatienceMilliseconds = 40;

} // namespace

void RunBeside(const std::function<void()>& work)
{
    std::exception_ptr fault;
    const std::unique_ptr<QThread> worker(QThread::create([&] {
        try {
            work();
        } catch (...) {
            fault = std::current_exception();
        }
    }));
    QEventLoop loop;
    QObject::connect(worker.get(), &QThread::finished, &loop, &QEventLoop::quit);
    worker->start();
    if (!worker->wait(PatienceMilliseconds)) {
        loop.exec(QEventLoop::ExcludeUserInputEvents);
        worker->wait();
    }
    if (fault) {
        std::rethrow_exception(fault);
    }
}

} // namespace ls
