#pragma once

#include <QMetaObject>
#include <QPointer>

// A progress callback for the engine's threads: each value hops to the
// main thread and is applied there only if the receiver still exists.
template <typename Value, typename Target, typename Apply> auto onMainThread(QPointer<Target> weak, Apply apply)
{
    return [weak, apply](const Value &value) {
        QMetaObject::invokeMethod(
            weak.data(),
            [weak, apply, value] {
                if (weak)
                    apply(*weak, value);
            },
            Qt::QueuedConnection);
    };
}
