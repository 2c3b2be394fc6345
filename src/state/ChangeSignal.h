#pragma once

#include <utility>

// Sets a field and emits its change signal, only when the value differs:
// every observed field of the state signals only on a real change.
template <typename Owner, typename Field, typename Value>
void setAndSignal(Owner *owner, Field &field, Value &&value, void (Owner::*changed)())
{
    if (field == value)
        return;
    field = std::forward<Value>(value);
    Q_EMIT(owner->*changed)();
}
