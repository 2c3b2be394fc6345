#pragma once

#include "model/BookmarkError.h"
#include "model/BookmarkKey.h"

#include <QString>
#include <stdexcept>

// Remembers the drive folder and the Vault folder across launches, one entry
// per key in the user's settings. Here the remembered record is the plain
// path, and a record stops serving when its folder is gone.
namespace BookmarkStore {

// Raised by save when the folder can't be remembered.
class StoreError : public std::runtime_error {
public:
    explicit StoreError(const QString &message) : std::runtime_error(message.toStdString()) {}
    QString message() const { return QString::fromStdString(what()); }
};

// "com.quennet.keelhold.bookmark." + the key's raw value.
QString settingsKey(BookmarkKey key);

// Replaces whatever was stored under the key. Raises StoreError when the
// path doesn't lead to a folder; nothing is stored then.
void save(const QString &folder, BookmarkKey key);

// The folder, or `notFound` when nothing is stored, or `stale` when what is
// stored no longer leads to a folder (or was never a path at all).
BookmarkResult resolve(BookmarkKey key);

void clear(BookmarkKey key);

} // namespace BookmarkStore
