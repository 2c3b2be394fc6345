#include "base/EnginePools.h"

namespace EnginePools {

namespace {
QThreadPool &make(int threads)
{
    // Never destroyed: a pool's destructor waits for its work, and work
    // that waits on a dead drive must not hold up the process's exit.
    auto *pool = new QThreadPool;
    pool->setMaxThreadCount(threads);
    return *pool;
}
} // namespace

QThreadPool &driveRuns()
{
    static QThreadPool &pool = make(4);
    return pool;
}

QThreadPool &media()
{
    static QThreadPool &pool = make(4);
    return pool;
}

QThreadPool &quick()
{
    static QThreadPool &pool = make(4);
    return pool;
}

} // namespace EnginePools
