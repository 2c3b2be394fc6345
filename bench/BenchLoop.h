#pragma once

// Waiting in a real event loop, for the benchmarks that drive the player: a
// busy loop would take a core from the decoders.

#include <QEventLoop>
#include <QTimer>

namespace BenchLoop {

// Until pred() holds, checked every millisecond, or ms pass; pred()'s last answer.
template <typename Pred>
bool waitFor(Pred pred, int ms)
{
    if (pred())
        return true;
    QEventLoop loop;
    QTimer poll;
    poll.setTimerType(Qt::PreciseTimer);
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (pred())
            loop.quit();
    });
    poll.start(1);
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
    return pred();
}

} // namespace BenchLoop
