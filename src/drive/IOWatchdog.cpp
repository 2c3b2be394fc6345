#include "drive/IOWatchdog.h"

namespace IOWatchdog {

QThreadPool &pool()
{
    static QThreadPool *instance = [] {
        auto *p = new QThreadPool;
        // Generous: a stuck read holds its thread until the kernel lets go.
        p->setMaxThreadCount(64);
        p->setExpiryTimeout(30000);
        return p;
    }();
    return *instance;
}

} // namespace IOWatchdog
